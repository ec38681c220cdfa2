#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <map>
#include <new>
#include <sstream>
#include <string>
#include <utility>

#include "channel/unix_pipe.h"
#include "core/core_test_support.h"
#include "core/process/client_writer.h"
#include "core/process/ui_command.h"
#include "core/tick.h"
#include "core/ui_commands.h"

static bool out_of_memory = false;

// Fails once when it is told to.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (std::exchange(out_of_memory, false)) throw std::bad_alloc();
    return std::malloc(size);
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

// Dispatch, commands and the tick's sweep, without a display: every dialog function then does nothing.

namespace {

// A capital is a title, a small letter a confirmation text.
std::string RequestLine(std::string const& action) {
    std::string line = "request";
    for (char const letter : action)
        line += (std::isdigit(letter)   ? " id="
                 : std::islower(letter) ? " confirm="
                                        : " title=") +
                std::string(1, letter);
    return line;
}

struct CoreTest : testing::Test {
    CoreTest() { Reset(); }

    void Reset() {
        actions.Clear();
        m_askedAbout.reset();
        m_postponedTo = Instant(INT64_MAX);
        inQuietMode = false;
        initialized = true;
        Replies();
    }
    void Decide(UICommandType type, unsigned long long id = 0, int minutes = 0, long long deadline_seconds = 0) {
        QueueCommand(type, id, minutes, deadline_seconds);
        ProcessMessagesFromUI();
    }
    std::string Replies() {
        std::string replies;
        for (auto const& reply : ::Replies()) replies += reply + " ";
        return replies;
    }
    std::string Pending() {
        std::string pending;
        for (auto const& action : actions) pending += Short(action) + " ";
        return pending;
    }
    // Carries out one word: a request after a plus, a withdrawal after a minus, or a decision, with its ID.
    void Step(std::string const& word) {
        static std::map<std::string, UICommandType> const decisions = {
            {"all", UICommandType::TakeAll},     {"take", UICommandType::Take},
            {"cancel", UICommandType::Cancel},   {"yes", UICommandType::ConfirmationAccepted},
            {"snooze", UICommandType::Snooze},   {"no", UICommandType::ConfirmationDeclined},
            {"unknown", UICommandType(12345678)}};
        auto const id = word.find_first_of("123456789");
        if (word[0] == '+') return Receive(RequestLine(word.substr(1)));
        if (word[0] == '-') return Receive("remove action " + word.substr(1));
        Decide(decisions.at(word.substr(0, id)), id == word.npos ? 0 : std::stoull(word.substr(id)));
    }
    // Plays a line of words and tells what came of it: the replies and, as "asked1a", the questions.
    std::string Play(std::string const& line) {
        std::istringstream words(line);
        std::string events;
        for (std::string word; words >> word;) {
            std::string const before = m_askedAbout && word != "yes" ? Short(*m_askedAbout) : "";
            Step(word);
            events += Replies();
            if (m_askedAbout && Short(*m_askedAbout) != before) events += "asked" + Short(*m_askedAbout) + " ";
        }
        return events;
    }
};

struct Fact {
    char const* fact;
    char const* steps;
    char const* events;
    char const* pending;
};

TEST_F(CoreTest, WhatIsDecidedIsAskedAboutAndAnswered) {
    Fact const facts[] = {
        {"a cancel never asks", "+1a cancel1 cancel1", "cancelled1 ", ""},
        {"an answer to no question takes nothing", "+1a +2 yes1 yes2", "", "1a 2 "},
        {"all are asked about before any is taken", "+1a +2 +3c all yes yes", "asked1a asked3c taken1 taken2 taken3 ",
         ""},
        {"nothing else is decided beside a question", "+1a +2 +3c take1 take2 take3 cancel2 all snooze yes",
         "asked1a taken1 ", "2 3c "},
        {"nor beside one of a take-all", "+1a +2b all take2 cancel2 all snooze yes yes",
         "asked1a asked2b taken1 taken2 ", ""},
        {"another title is asked about", "+1aX take1 -1 +1aY yes", "asked1aX asked1aY ", "1aY "},
        {"the same question is not", "+1aX take1 -1 +1aX yes", "asked1aX taken1 ", ""},
        {"without a question it is left to another decision", "+1a take1 -1 +1 yes", "asked1a ", "1 "},
        {"a take-all walks on over what has changed", "+1a +2b +3 +4d all yes -1 -3 +1a yes yes yes",
         "asked1a asked2b asked4d asked1a taken2 taken4 taken1 ", ""},
        {"nor is what comes where its question was taken", "+1a +2b all yes -2 +3c yes yes",
         "asked1a asked2b asked3c taken1 taken3 ", ""},
        {"over an empty list nothing is put off", "snooze", "", ""},
        {"a type that nobody knows is nothing", "+1 unknown", "", "1 "},
    };
    for (auto const& [fact, steps, events, pending] : facts) {
        Reset();
        EXPECT_EQ(Play(steps), events) << fact;
        EXPECT_EQ(Pending(), pending) << fact;
    }
}

TEST_F(CoreTest, RemovalTakesTheFirstOfEqualIDsAndOfferNothing) {
    Play("+1 +2X +2 +3");
    Receive("remove offer 2\nremove message 2\nremove action 9");
    EXPECT_EQ(Pending(), "1 2X 2 3 ");
    Receive("remove action 2\nremove all 3");
    EXPECT_EQ(Pending(), "1 2 ");
}

TEST_F(CoreTest, ASnoozeCountsFromNowOrFromTheDeadlineInSecondsOf32Bits) {
    Play("+1");
    Decide(UICommandType::Snooze, 0, 30);
    EXPECT_NEAR(static_cast<double>((m_postponedTo - Instant::Now()).Microseconds()), 30e6 * 60, 3e6);
    EXPECT_THAT(Replies(), testing::MatchesRegex("RemindTime .* RemindInterval TimeInterval=PT30M "));
    Decide(UICommandType::Snooze, 0, -15, (7LL << 32) + 4'102'444'800);
    EXPECT_EQ(Replies(), "RemindTime TimeObject=Thu, 31 Dec 2099 23:45:00 +0000 RemindInterval TimeInterval=-PT15M ");
}

TEST_F(CoreTest, AReportToAClientThatIsGoneIsNotWaitedFor) {
    UnixPipeRef const gone(client_pipe = new UnixPipe(readQ, writeQ));
    client_pipe->Kill();
    auto const begin = TimeMark::Now();
    ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::DialogNotShown, "Dialog");
    SendErrorToClient(error);
    EXPECT_LT(TimeMark::Now() - begin, TimeInterval::Seconds(60));
    client_pipe = nullptr;
}

// For the first there is no memory.
TEST_F(CoreTest, ADecisionThatFailsCostsNoOther) {
    Play("+1 +2");
    for (unsigned long long id : {1, 2}) QueueCommand(UICommandType::Take, id, 0, 0);
    out_of_memory = true;
    ProcessMessagesFromUI();
    EXPECT_EQ(Replies() + Pending(), "taken2 1 ");
}

TEST_F(CoreTest, ATickHearsTheClientBeforeTheUserAndTakesNothingInTheSecondOfItsDeadline) {
    Instant second;
    do {
        second = Instant::Now();
        Reset();
        Receive("request id=1\nrequest id=2 force deadline=+0s");
        QueueCommand(UICommandType::Take, 1, 0, 0);
        auto const removal = tools::MessageFor(tools::ParseScenarioLine("remove action 1"));
        readQ.WriteMessage(UIMessage(UStringRef<UTF8>(tools::Document(removal))));
        ServiceTimerTick();
    } while (second != Instant::Now());
    EXPECT_EQ(Replies() + Pending(), "2 ");
}

TEST_F(CoreTest, TheSweepTakesOverdueForcedActionsOutsideQuietModeOnlyAndEvenWhileTheyAreAskedAbout) {
    Receive(
        "request id=1 confirm=a force deadline=-2s\nrequest id=2 force deadline=+1m\nrequest id=3 force deadline=-2s");
    Receive("request id=4 deadline=-2s\nrequest id=5 confirm=e force");
    EXPECT_EQ(Play("all"), "asked1a ");
    // It begins even when its times are bad.
    Receive("quiet start=never");
    ServiceTimerTick();
    EXPECT_EQ(Replies(), "");
    Receive("quiet end");
    ServiceTimerTick();
    EXPECT_EQ(Replies(), "taken1 taken3 ");
    EXPECT_EQ(Play("yes yes"), "asked5e taken2 taken4 taken5 ") << "the take-all has kept its place";
}

}  // namespace
