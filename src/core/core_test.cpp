#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "core/client_messages.h"
#include "core/process/client_writer.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "core/tick.h"
#include "core/ui_commands.h"
#include "tools/client_messages.h"

// Dispatch, commands and the tick's sweep, without a display: every dialog function then only does what concerns the
// pending list.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

std::string Request(unsigned long long id, std::string const& more = "") {
    return "<ActionRequest><ID>" + std::to_string(id) + "</ID>" + more + "</ActionRequest>";
}
std::string Removal(unsigned long long id, std::string const& type) {
    return "<RemoveRequest><RemoveType>" + type + "</RemoveType><ID>" + std::to_string(id) + "</ID></RemoveRequest>";
}
std::string Taken(unsigned long long id) {
    return "ActionTaken ID=" + std::to_string(id) + " IsCancel=false IsOffer=false";
}
char const kAsk[] = "<PreActionMessage>Sure?</PreActionMessage>";

std::string Deadline(int secondsFromNow) {
    auto const time = std::chrono::system_clock::now() + std::chrono::seconds(secondsFromNow);
    return "<ForceRun>1</ForceRun><Deadline>" + tools::TimeText(time) + "</Deadline>";
}

struct CoreTest : testing::Test {
    void SetUp() override {
        actions.Clear();
        initialized = true;
        m_postponedTo = Instant(INT64_MAX);
        inQuietMode = false;
        Decide(UICommandType::ConfirmationDeclined);
        Replies();
    }

    // Unknown elements count for nothing, nor does the root's name.
    void Receive(std::string const& children) {
        std::string const document = "<AnyRoot><Unknown></Unknown>" + children + "</AnyRoot>";
        readQ.WriteMessage(UIMessage(UStringRef<UTF8>(document)));
        ProcessMessagesFromClient();
    }
    void Decide(UICommandType type, unsigned long long id = 0, int minutes = 0) {
        QueueCommand(type, id, minutes, 0);
        ProcessMessagesFromUI();
    }
    std::vector<unsigned long long> Pending() {
        std::vector<unsigned long long> ids;
        for (auto const& action : actions) ids.push_back(action.id);
        return ids;
    }
    // What has been sent since the last call.
    Names Replies() {
        FiFoQueue<UIMessage> sent;
        Names replies;
        for (writeQ.ReadMessages(sent); !sent.IsEmpty();)
            replies.push_back(tools::ReadAnswer(sent.TakeFront().Text().AsStringView()).Text());
        return replies;
    }
};

TEST_F(CoreTest, RemovalTakesTheFirstOfEqualIDsAndOfferNothing) {
    Receive(Request(1) + Request(2, "<Title>first</Title>") + Request(2) + Request(3));
    Receive(Removal(2, "Offer") + Removal(2, "Message") + Removal(9, "Action"));
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 2, 3));
    Receive(Removal(2, "Action") + Removal(3, "All") + Removal(1, "offer"));
    EXPECT_THAT(Pending(), ElementsAre(2));
    EXPECT_TRUE(actions[0].title.empty());
}

TEST_F(CoreTest, TakeAndCancelAnswerOnceAndOnlyForPendingActions) {
    Receive(Request(1) + Request(2, kAsk) + Request(3, kAsk));
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Cancel, 2);
    Decide(UICommandType::Cancel, 2);
    EXPECT_THAT(Replies(), ElementsAre(Taken(1), "ActionTaken ID=2 IsCancel=true IsOffer=false"));
    Decide(UICommandType::Take, 3);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::ConfirmationDeclined, 3);
    EXPECT_THAT(Pending(), ElementsAre(3));
    Decide(UICommandType::ConfirmationAccepted, 3);
    EXPECT_THAT(Replies(), ElementsAre(Taken(3)));
    EXPECT_THAT(Pending(), IsEmpty());
}

TEST_F(CoreTest, ADeclinedQuestionAbandonsTheWholeTakeAll) {
    Receive(Request(1, kAsk) + Request(2, kAsk));
    Decide(UICommandType::TakeAll);
    Decide(UICommandType::ConfirmationAccepted, 1);
    Decide(UICommandType::ConfirmationDeclined, 2);
    Decide(UICommandType::ConfirmationAccepted, 2);
    EXPECT_THAT(Replies(), ElementsAre(Taken(2)));
    Decide(UICommandType::TakeAll);
    EXPECT_THAT(Replies(), IsEmpty()) << "it is asked about again";
    EXPECT_THAT(Pending(), ElementsAre(1));
}

// Whatever of 1 to 5 is withdrawn, or taken by the sweep, while 3 is asked about: the take-all still asks about each of
// 1, 3 and 5 that is left before it answers, in the list's order.
TEST_F(CoreTest, WhateverLeavesDuringATakeAllSkipsNoQuestion) {
    for (unsigned round = 0; round < 64; ++round) {
        SetUp();
        bool const swept = round >= 32;
        auto leaves = [&](unsigned id) { return (round >> (id - 1) & 1) != 0; };
        for (unsigned id = 1; id <= 5; ++id)
            Receive(Request(id, (id % 2 ? kAsk : "") + (swept && leaves(id) ? Deadline(-2) : "")));
        Decide(UICommandType::TakeAll);
        Decide(UICommandType::ConfirmationAccepted, 1);
        Names gone, taken;
        for (unsigned id = 1; id <= 5; ++id) {
            (leaves(id) ? gone : taken).push_back(Taken(id));
            if (leaves(id) && !swept) Receive(Removal(id, "Action"));
        }
        if (swept) ServiceTimerTick();
        EXPECT_EQ(Replies(), swept ? gone : Names()) << round;
        Decide(UICommandType::ConfirmationAccepted, 3);
        if (!leaves(5)) {
            EXPECT_THAT(Replies(), IsEmpty());
            Decide(UICommandType::ConfirmationAccepted, 5);
        }
        EXPECT_EQ(Replies(), taken) << round;
        EXPECT_THAT(Pending(), IsEmpty());
    }
}

TEST_F(CoreTest, AnAnswerToAnotherQuestionDoesNotContinueTheTakeAll) {
    Receive(Request(1, kAsk) + Request(2, kAsk));
    Decide(UICommandType::Take, 2);
    Decide(UICommandType::TakeAll);
    Decide(UICommandType::ConfirmationAccepted, 2);
    EXPECT_THAT(Replies(), ElementsAre(Taken(2)));
    Decide(UICommandType::ConfirmationAccepted, 1);
    EXPECT_THAT(Replies(), ElementsAre(Taken(1)));
}

TEST_F(CoreTest, AnAnswerOnItsWayCountsForNoQuestionOfALaterTakeAll) {
    Receive(Request(1, kAsk) + Request(2, kAsk));
    for (unsigned long long asked : {1, 2}) {
        Decide(UICommandType::TakeAll);
        if (asked == 2) Decide(UICommandType::ConfirmationAccepted, 1);
        Receive(Removal(2, "Action") + Request(2, "<PreActionMessage>Other?</PreActionMessage>"));
        QueueCommand(UICommandType::TakeAll, 0, 0, 0);
        Decide(UICommandType::ConfirmationAccepted, asked);
        Decide(UICommandType::ConfirmationAccepted, 1);
        EXPECT_THAT(Replies(), IsEmpty()) << "2 is asked about now";
        Decide(UICommandType::ConfirmationDeclined, 2);
        EXPECT_THAT(Replies(), IsEmpty());
    }
    EXPECT_THAT(Pending(), ElementsAre(1, 2));
}

TEST_F(CoreTest, AnAnswerDoesNotCountForAnotherActionOfTheID) {
    Receive(Request(1, kAsk));
    Decide(UICommandType::Take, 1);
    for (std::string const other : {"<PreActionMessage>Other?</PreActionMessage>", "<Title>x</Title>"}) {
        Receive(Removal(1, "Action") + Request(1, other + kAsk));
        Decide(UICommandType::ConfirmationAccepted, 1);
        EXPECT_THAT(Replies(), IsEmpty()) << "it is asked about now";
    }
    Receive(Removal(1, "Action") + Request(1, "<Title>x</Title><Restart>1</Restart>" + std::string(kAsk)));
    Decide(UICommandType::ConfirmationAccepted, 1);
    EXPECT_THAT(Replies(), ElementsAre(Taken(1))) << "the question is the same";
    Receive(Request(1, kAsk));
    Decide(UICommandType::Take, 1);
    Receive(Removal(1, "Action") + Request(1));
    Decide(UICommandType::ConfirmationAccepted, 1);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::Take, 1);
    EXPECT_THAT(Replies(), ElementsAre(Taken(1)));
}

TEST_F(CoreTest, NothingIsSnoozedOverAnEmptyListWhateverComesBeforeThatIsLookedAt) {
    Decide(UICommandType::Snooze, 0, 30);
    QueueCommand(UICommandType::Snooze, 0, 30, 0, true);
    Receive(Request(1));
    ProcessMessagesFromUI();
    EXPECT_THAT(Replies(), IsEmpty());
    EXPECT_EQ(m_postponedTo, Instant(INT64_MAX));
}

TEST_F(CoreTest, ASnoozeCountsFromNowOrFromTheDeadlineInSecondsOf32Bits) {
    Receive(Request(1));
    Decide(UICommandType::Snooze, 0, 30);
    EXPECT_NEAR(static_cast<double>((m_postponedTo - Instant::Now()).Microseconds()), 30e6 * 60, 3e6);
    EXPECT_THAT(Replies(), ElementsAre(testing::StartsWith("RemindTime "), "RemindInterval TimeInterval=PT30M"));
    QueueCommand(UICommandType::Snooze, 0, -15, (7LL << 32) + 4'102'444'800);
    ProcessMessagesFromUI();
    EXPECT_THAT(Replies(), ElementsAre("RemindTime TimeObject=Thu, 31 Dec 2099 23:45:00 +0000",
                                       "RemindInterval TimeInterval=-PT15M"));
}

TEST_F(CoreTest, TheSweepTakesOverdueForcedActionsOutsideQuietModeOnly) {
    Receive(Request(1, Deadline(-2) + kAsk) + Request(2, Deadline(60)) + Request(3, Deadline(-2)) +
            Request(4, "<Deadline>Thu, 01 Jan 1970 00:00:00 +0000</Deadline>") + Request(5, "<ForceRun>1</ForceRun>"));
    // It begins even when its times are bad.
    Receive("<QuietModeStart><StartTime>never</StartTime></QuietModeStart>");
    ServiceTimerTick();
    EXPECT_THAT(Replies(), IsEmpty());
    Receive("<QuietModeEnd></QuietModeEnd>");
    ServiceTimerTick();
    EXPECT_THAT(Replies(), ElementsAre(Taken(1), Taken(3)));
    EXPECT_THAT(Pending(), ElementsAre(2, 4, 5));
}

}  // namespace
