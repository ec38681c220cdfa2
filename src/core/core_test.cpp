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
char const kAsk[] = "<PreActionMessage>Sure?</PreActionMessage>";

std::string Deadline(long long secondsFromNow) {
    TimeObject const time(Instant::Now() + TimeInterval::Seconds(secondsFromNow), TimeZone());
    return "<ForceRun>1</ForceRun><Deadline>" + std::string(TimeToText(time).AsStringView()) + "</Deadline>";
}

class CoreTest : public testing::Test {
  protected:
    void SetUp() override {
        actions.Clear();
        m_postponedTo = Instant(0);
        inQuietMode = false;
        QueueCommand(UICommandType::ConfirmationDeclined, 0, 0, 0);
        ProcessMessagesFromUI();
        Replies();
    }

    void Queue(std::string const& children) {
        readQ.WriteMessage(UIMessage(UStringRef<UTF8>("<ClientToUI>" + children + "</ClientToUI>")));
    }
    void Receive(std::string const& children) {
        Queue(children);
        ProcessMessagesFromClient();
    }
    void Decide(UICommandType type, unsigned long long id = 0, int minutes = 0, long long deadline = 0) {
        QueueCommand(type, id, minutes, deadline);
        ProcessMessagesFromUI();
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
    Queue(Request(1) + "<Unknown/>");
    Queue("");
    Queue(Request(2) + Request(3, "<ID>x</ID>") + "<ActionRequest><ID>y</ID></ActionRequest>" + Request(4));
    Queue(Request(5));
    ProcessMessagesFromClient();
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 3));
    Receive(Request(6));
    EXPECT_THAT(Pending(), ElementsAre(1, 2, 3, 6));
}

TEST_F(CoreTest, AMessageWithoutAnyElementIsBad) {
    readQ.WriteMessage(UIMessage(UStringRef<UTF8>("no markup")));
    Queue(Request(1));
    ProcessMessagesFromClient();
    EXPECT_THAT(Pending(), IsEmpty());
}

TEST_F(CoreTest, TheRootsNameIsNotLookedAt) {
    readQ.WriteMessage(UIMessage(UStringRef<UTF8>("<Anything>" + Request(1) + "</Anything>")));
    ProcessMessagesFromClient();
    EXPECT_THAT(Pending(), ElementsAre(1));
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

TEST_F(CoreTest, QuietModeBeginsEvenWhenItsTimesAreBad) {
    Receive("<QuietModeStart><StartTime>never</StartTime></QuietModeStart>");
    EXPECT_TRUE(inQuietMode);
    Receive("<QuietModeEnd></QuietModeEnd>");
    EXPECT_FALSE(inQuietMode);
}

TEST_F(CoreTest, TakeAndCancelAnswerOnceAndOnlyForPendingActions) {
    Receive(Request(1) + Request(2, kAsk) + Request(3, kAsk));
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Take, 1);
    Decide(UICommandType::Cancel, 2);
    Decide(UICommandType::Cancel, 2);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 1", "ActionTaken true false 2"));
    Decide(UICommandType::Take, 3);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::ConfirmationDeclined, 3);
    EXPECT_THAT(Pending(), ElementsAre(3));
    Decide(UICommandType::ConfirmationAccepted, 3);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 3"));
    EXPECT_THAT(Pending(), IsEmpty());
}

TEST_F(CoreTest, TakeAllAnswersInListOrderOnceEveryQuestionIsAccepted) {
    Receive(Request(3) + Request(1, kAsk) + Request(2) + Request(4, kAsk));
    Decide(UICommandType::TakeAll);
    Decide(UICommandType::ConfirmationAccepted, 1);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::ConfirmationAccepted, 4);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 3", "ActionTaken false false 1",
                                       "ActionTaken false false 2", "ActionTaken false false 4"));
    EXPECT_THAT(Pending(), IsEmpty());
}

TEST_F(CoreTest, ADeclinedQuestionAbandonsTheWholeTakeAll) {
    Receive(Request(1, kAsk) + Request(2, kAsk));
    Decide(UICommandType::TakeAll);
    Decide(UICommandType::ConfirmationAccepted, 1);
    Decide(UICommandType::ConfirmationDeclined, 2);
    Decide(UICommandType::ConfirmationAccepted, 2);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 2"));
    EXPECT_THAT(Pending(), ElementsAre(1));
}

// Whatever of 1 to 5 is withdrawn while 3 is asked about, the take-all still asks about each of 1, 3 and 5 that is left
// before it answers.
TEST_F(CoreTest, WithdrawalsDuringATakeAllSkipNoQuestion) {
    for (unsigned withdrawn = 0; withdrawn < 32; ++withdrawn) {
        SetUp();
        Receive(Request(1, kAsk) + Request(2) + Request(3, kAsk) + Request(4) + Request(5, kAsk));
        Decide(UICommandType::TakeAll);
        Decide(UICommandType::ConfirmationAccepted, 1);
        Names expected;
        for (unsigned id = 1; id <= 5; ++id) {
            if (withdrawn & 1u << (id - 1))
                Receive(Removal(id, "Action"));
            else
                expected.push_back("ActionTaken false false " + std::to_string(id));
        }
        Decide(UICommandType::ConfirmationAccepted, 3);
        bool const five_is_left = !(withdrawn & 16);
        if (five_is_left) {
            EXPECT_THAT(Replies(), IsEmpty());
            Decide(UICommandType::ConfirmationAccepted, 5);
        }
        EXPECT_EQ(Replies(), expected) << withdrawn;
    }
}

TEST_F(CoreTest, ASweepDuringATakeAllSkipsNoQuestionEither) {
    initialized = true;
    m_postponedTo = Instant(INT64_MAX);
    Receive(Request(1, Deadline(-2)) + Request(2, Deadline(-2)) + Request(3, kAsk) + Request(4, kAsk) +
            Request(5, kAsk + Deadline(-2)) + Request(6));
    Decide(UICommandType::TakeAll);
    ServiceTimerTick();
    EXPECT_THAT(Replies(),
                ElementsAre("ActionTaken false false 1", "ActionTaken false false 2", "ActionTaken false false 5"));
    Decide(UICommandType::ConfirmationAccepted, 3);
    EXPECT_THAT(Replies(), IsEmpty());
    Decide(UICommandType::ConfirmationAccepted, 4);
    EXPECT_THAT(Replies(),
                ElementsAre("ActionTaken false false 3", "ActionTaken false false 4", "ActionTaken false false 6"));
}

TEST_F(CoreTest, AnAnswerToAnotherQuestionDoesNotContinueTheTakeAll) {
    Receive(Request(1, kAsk) + Request(2, kAsk));
    Decide(UICommandType::Take, 2);
    Decide(UICommandType::TakeAll);
    Decide(UICommandType::ConfirmationAccepted, 2);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 2"));
    Decide(UICommandType::ConfirmationAccepted, 1);
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 1"));
}

TEST_F(CoreTest, ASnoozeSendsItsTimeAndThenItsInterval) {
    // Over an empty list, whatever comes before it is looked at.
    Decide(UICommandType::Snooze, 0, 30);
    QueueCommand(UICommandType::Snooze, 0, 30, 0);
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
    auto const left = (m_postponedTo - Instant::Now()).Microseconds();
    EXPECT_NEAR(static_cast<double>(left), 30e6 * 60, 3e6);
}

TEST_F(CoreTest, TheSweepTakesOverdueForcedActionsOutsideQuietModeOnly) {
    initialized = true;
    m_postponedTo = Instant(INT64_MAX);
    Receive(Request(1, Deadline(-2) + kAsk) + Request(2, Deadline(60)) + Request(3, Deadline(-2)) +
            Request(4, "<Deadline>Thu, 01 Jan 1970 00:00:00 +0000</Deadline>") + Request(5, "<ForceRun>1</ForceRun>"));
    Receive("<QuietModeStart></QuietModeStart>");
    ServiceTimerTick();
    EXPECT_THAT(Replies(), IsEmpty());
    Receive("<QuietModeEnd></QuietModeEnd>");
    ServiceTimerTick();
    EXPECT_THAT(Replies(), ElementsAre("ActionTaken false false 1", "ActionTaken false false 3"));
    EXPECT_THAT(Pending(), ElementsAre(2, 4, 5));
}

}  // namespace
