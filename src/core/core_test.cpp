#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/client_messages.h"
#include "core/process/client_writer.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "core/tick.h"
#include "core/ui_commands.h"
#include "foundation/time/time_to_text.h"
#include "xml/simple_xml.h"

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
    return "ActionTaken false false " + std::to_string(id);
}
char const kAsk[] = "<PreActionMessage>Sure?</PreActionMessage>";

std::string Deadline(long long secondsFromNow) {
    TimeObject const time(Instant::Now() + TimeInterval::Seconds(secondsFromNow), TimeZone());
    return "<ForceRun>1</ForceRun><Deadline>" + std::string(TimeToText(time).AsStringView()) + "</Deadline>";
}

struct CoreTest : testing::Test {
    void SetUp() override {
        actions.Clear();
        m_postponedTo = Instant(0);
        inQuietMode = false;
        QueueCommand(UICommandType::ConfirmationDeclined, 0, 0, 0);
        ProcessMessagesFromUI();
        Replies();
    }

    void Queue(std::string const& document) { readQ.WriteMessage(UIMessage(UStringRef<UTF8>(document))); }
    void Receive(std::string const& children) {
        Queue("<ClientToUI>" + children + "</ClientToUI>");
        ProcessMessagesFromClient();
    }
    void Decide(UICommandType type, unsigned long long id = 0, int minutes = 0, long long deadline = 0) {
        QueueCommand(type, id, minutes, deadline);
        ProcessMessagesFromUI();
    }
    void Sweep() {
        initialized = true;
        m_postponedTo = Instant(INT64_MAX);
        ServiceTimerTick();
    }
    std::vector<unsigned long long> Pending() {
        std::vector<unsigned long long> ids;
        for (auto const& action : actions) ids.push_back(action.id);
        return ids;
    }
    // What has been sent since the last call, each reply as its name and its values.
    Names Replies() {
        FiFoQueue<UIMessage> sent;
        writeQ.ReadMessages(sent);
        Names names;
        while (!sent.IsEmpty()) {
            auto root = SimpleXML::Parse(sent.TakeFront().Text());
            auto const& reply = root->Children().at(0);
            std::string name(reply.Name().AsStringView());
            for (auto const& value : reply.Children()) name.append(" ").append(value.GetValue().AsStringView());
            names.push_back(name);
        }
        return names;
    }
};

TEST_F(CoreTest, ABadMessageDropsTheRestOfItsBatchOnly) {
    Queue("<AnyRoot><Unknown></Unknown>" + Request(1) + "</AnyRoot>");
    Queue("<ClientToUI>" + Request(2) + "<ActionRequest><ID>y</ID></ActionRequest>" + Request(3) + "</ClientToUI>");
    Receive(Request(4));
    Queue("no markup");
    Receive(Request(5));
    EXPECT_THAT(Pending(), ElementsAre(1, 2));
    Receive(Request(6, "<ID>x</ID>"));
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 6));
}

TEST_F(CoreTest, RemovalTakesTheFirstOfEqualIDsAndOfferNothing) {
    Receive(Request(1) + Request(2, "<Title>first</Title>") + Request(2) + Request(3));
    Receive(Removal(2, "Offer") + Removal(2, "Message") + Removal(9, "Action"));
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 2, 3));
    Receive(Removal(2, "Action"));
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 3));
    EXPECT_TRUE(actions[1].title.empty());
    Receive(Removal(3, "All"));
    EXPECT_THAT(Pending(), ElementsAre(1, 2));
}

TEST_F(CoreTest, TakeAndCancelAnswerOnceAndOnlyForPendingActions) {
    Receive(Request(1) + Request(2, kAsk) + Request(3, kAsk));
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Cancel, 2);
    Decide(UICommandType::Cancel, 2);
    EXPECT_THAT(Replies(), ElementsAre(Taken(1), "ActionTaken true false 2"));
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

// Whatever of 1 to 5 is withdrawn while 3 is asked about, the take-all still asks about each of 1, 3 and 5 that is left
// before it answers, in the list's order.
TEST_F(CoreTest, WithdrawalsDuringATakeAllSkipNoQuestion) {
    for (unsigned withdrawn = 0; withdrawn < 32; ++withdrawn) {
        SetUp();
        Receive(Request(1, kAsk) + Request(2) + Request(3, kAsk) + Request(4) + Request(5, kAsk));
        Decide(UICommandType::TakeAll);
        Decide(UICommandType::ConfirmationAccepted, 1);
        Names expected;
        for (unsigned id = 1; id <= 5; ++id) {
            bool const stays = !(withdrawn & 1u << (id - 1));
            stays ? expected.push_back(Taken(id)) : Receive(Removal(id, "Action"));
        }
        Decide(UICommandType::ConfirmationAccepted, 3);
        if (actions.FindAction(5)) {
            EXPECT_THAT(Replies(), IsEmpty());
            Decide(UICommandType::ConfirmationAccepted, 5);
        }
        EXPECT_EQ(Replies(), expected) << withdrawn;
        EXPECT_THAT(Pending(), IsEmpty());
    }
}

TEST_F(CoreTest, ASweepDuringATakeAllSkipsNoQuestionEither) {
    Receive(Request(1, Deadline(-2)) + Request(2, Deadline(-2)) + Request(3, kAsk) + Request(4, kAsk) +
            Request(5, kAsk + Deadline(-2)) + Request(6));
    Decide(UICommandType::TakeAll);
    Sweep();
    EXPECT_THAT(Replies(), ElementsAre(Taken(1), Taken(2), Taken(5)));
    Decide(UICommandType::ConfirmationAccepted, 3);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::ConfirmationAccepted, 4);
    EXPECT_THAT(Replies(), ElementsAre(Taken(3), Taken(4), Taken(6)));
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

TEST_F(CoreTest, ASnoozeSendsItsTimeAndThenItsInterval) {
    // Over an empty list, whatever comes before it is looked at.
    Decide(UICommandType::Snooze, 0, 30);
    QueueCommand(UICommandType::Snooze, 0, 30, 0, true);
    Receive(Request(1));
    ProcessMessagesFromUI();
    EXPECT_THAT(Replies(), IsEmpty());
    EXPECT_EQ(m_postponedTo, Instant(0));
    // 2026-11-18 02:16:00 UTC, and the same beyond 32 bits.
    for (long long deadline : {1'794'968'160LL, 1'794'968'160LL + (7LL << 32)}) {
        Decide(UICommandType::Snooze, 0, -15, deadline);
        EXPECT_THAT(Replies(), ElementsAre("RemindTime Wed, 18 Nov 2026 02:01:00 +0000", "RemindInterval -PT15M"));
    }
    EXPECT_EQ(m_remindInterval, TimeInterval::Minutes(-15));
    Decide(UICommandType::Snooze, 0, 0, 1'794'968'160);
    EXPECT_THAT(Replies(), ElementsAre("RemindTime Wed, 18 Nov 2026 02:16:00 +0000", "RemindInterval PT0S"));
    Decide(UICommandType::Snooze, 0, 30, 0);
    EXPECT_THAT(Replies(), ElementsAre(testing::StartsWith("RemindTime "), "RemindInterval PT30M"));
    EXPECT_NEAR(static_cast<double>((m_postponedTo - Instant::Now()).Microseconds()), 30e6 * 60, 3e6);
}

TEST_F(CoreTest, TheSweepTakesOverdueForcedActionsOutsideQuietModeOnly) {
    Receive(Request(1, Deadline(-2) + kAsk) + Request(2, Deadline(60)) + Request(3, Deadline(-2)) +
            Request(4, "<Deadline>Thu, 01 Jan 1970 00:00:00 +0000</Deadline>") + Request(5, "<ForceRun>1</ForceRun>"));
    // It begins even when its times are bad.
    Receive("<QuietModeStart><StartTime>never</StartTime></QuietModeStart>");
    Sweep();
    EXPECT_THAT(Replies(), IsEmpty());
    Receive("<QuietModeEnd></QuietModeEnd>");
    Sweep();
    EXPECT_THAT(Replies(), ElementsAre(Taken(1), Taken(3)));
    EXPECT_THAT(Pending(), ElementsAre(2, 4, 5));
}

}  // namespace
