#include "dialogs/action_request_contents.h"

#include <gtest/gtest.h>

#include "dialogs/snooze_choices.h"

namespace {

// Of two actions, the second of which is due; all within one second.
ActionRequestContents Contents(long long seconds_from_now, bool forced) {
    ActionRequest action;
    Instant const now = Instant::Now();
    action.deadline = TimeObject(now + TimeInterval::Seconds(seconds_from_now), TimeZone());
    action.force_run = forced;
    PendingActions list;
    list.Append({});
    list.Append(action);
    auto contents = MakeActionRequestContents(list, nullptr, true);
    return now == Instant::Now() ? std::move(contents) : Contents(seconds_from_now, forced);
}

TEST(ActionRequestContentsTest, ANearOrPastDeadlineForbidsSnoozing) {
    for (auto [seconds, allowed] : {std::pair(300, true), {299, false}, {-5, false}}) {
        auto const contents = Contents(seconds, false);
        EXPECT_EQ(contents.snooze_list, allowed) << seconds;
        EXPECT_EQ(contents.snooze_button, allowed) << seconds;
    }
}

TEST(ActionRequestContentsTest, AForcedDeadlineStandsStillAtFiveMinutesWithoutASelection) {
    EXPECT_STREQ(Contents(90, true).description.c_str(),
                 "At least one of these actions will run automatically in 5 minutes, 0 seconds.");
    EXPECT_STREQ(Contents(300, false).description.c_str(), "There is at least one action you must take within Now.");
    EXPECT_STREQ(Contents(299, false).description.c_str(), "There is at least one action you must take now.");
}

TEST(ActionRequestContentsTest, ASelectedActionThatIsGoneThrows) {
    PendingActions list;
    list.Append({});
    unsigned long long const gone = 9;
    EXPECT_THROW(MakeActionRequestContents(list, &gone, true), NoSelectedAction);
}

TEST(SnoozeChoicesTest, TheProposedRowIsTheClosest) {
    auto const with = MakeSnoozeChoices(true), without = MakeSnoozeChoices(false);
    for (auto [seconds, row] : {std::pair(0LL, 0), {450LL, 1}, {451LL, 2}, {90LL * 60, 6}, {INT64_MAX, 16}})
        EXPECT_EQ(DefaultSnoozeRow(without, TimeInterval::Seconds(seconds)), row) << seconds;
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval::Minutes(-5)), 1);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval(INT64_MIN)), 0);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval(INT64_MAX)), 18);
}

}  // namespace
