#include "localisation/action_summary.h"

#include <gtest/gtest.h>

#include <string>

#include "localisation/deadline_text.h"

namespace {

ActionRequest Due(unsigned long long id, long long seconds_from_now, bool forced) {
    ActionRequest action;
    action.id = id;
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Seconds(seconds_from_now), TimeZone());
    action.force_run = forced;
    return action;
}

enum Family { One, Selected, Pending };

// The summary of one action: by itself, as a selection, as the pending list.
std::string Summary(ActionRequest const& action, Family family) {
    ActionRequestStore store;
    store.UpdateActions({&action, 1});
    auto const text = family == One ? ActionSummary(action) : ActionSummary({action.id}, store, family == Pending);
    return std::string(text.AsStringView());
}

TEST(ActionSummaryTest, SaysInOneSentenceWhatIsAskedOfTheUser) {
    ActionRequest const whenever, soon = Due(0, 120, false), later = Due(0, 7260, false), forced = Due(0, 7260, true);
    struct {
        Family family;
        bool save, restart, shutdown;
        ActionRequest const& due;
        char const* sentence;
    } const cases[] = {
        {One, false, false, false, whenever, ""},
        {One, false, true, false, whenever, "This action will require a system restart."},
        {One, false, false, false, soon, "You must take this action now."},
        {One, false, false, false, forced, "This action will run automatically in 2 hours."},
        {One, false, false, true, forced,
         "This action will require a system shutdown.  This action will run automatically in 2 hours."},
        {One, true, true, true, later,
         "You should save your work before taking this action, as it will require a system restart.  You must take "
         "this "
         "action within 2 hours."},
        {Selected, true, true, true, later,
         "You should save your work before taking the selected actions, as they will require a system shutdown when "
         "they "
         "are complete.  There is at least one selected action you must take within 2 hours."},
        {Selected, false, false, true, whenever,
         "The selected actions will require a system shutdown when they are complete."},
        {Selected, false, false, true, soon,
         "The selected actions will require a system shutdown when they are complete.  There is at least one selected "
         "action you must take now."},
        {Pending, true, true, false, later,
         "You should save your work before taking these actions.  There is at least one action you must take within 2 "
         "hours."},
        {Pending, false, true, false, soon,
         "The pending actions will require a system restart when they are complete.  There is at least one action you "
         "must take now."},
        {Pending, false, true, false, forced,
         "The pending actions will require a system restart when they are complete.  At least one of these actions "
         "will "
         "run automatically in 2 hours."},
    };
    for (auto const& expected : cases) {
        ActionRequest action = expected.due;
        action.request_save = expected.save;
        action.restart = expected.restart;
        action.shutdown = expected.shutdown;
        EXPECT_EQ(Summary(action, expected.family), expected.sentence);
    }
}

TEST(ActionSummaryTest, OfASetTheEarliestDeadlineDecidesAndTheLowestIDAmongEquals) {
    ActionRequest all[] = {Due(1, 7200 + 60, true), Due(2, 3600 + 60, false), Due(3, 0, true)};
    all[2].deadline = all[1].deadline;
    all[1].request_save = true;
    ActionRequestStore store;
    store.UpdateActions(all);
    auto summary = [&](std::set<unsigned long long> ids) {
        return std::string(ActionSummary(ids, store, true).AsStringView());
    };
    EXPECT_EQ(summary({1, 2, 3}),
              "You should save your work before taking these actions.  There is at least one action you must take "
              "within 1 hour.");
    EXPECT_EQ(summary({1, 3}), "At least one of these actions will run automatically in 1 hour.");
    EXPECT_EQ(summary({}), "");
    EXPECT_THROW(summary({6}), NoSuchActionRequestID);
}

TEST(ActionRequestStoreTest, UpdatesOverwriteAndRaiseNearForcedDeadlines) {
    ActionRequest const first[] = {Due(1, 240, true), Due(2, 360, true), Due(3, 240, false)};
    ActionRequest second[] = {Due(1, -10, true)};
    second[0].SetTitle("later");
    ActionRequestStore store;
    store.UpdateActions(first);
    EXPECT_GE(*store.GetAction(1).Deadline(), *first[0].Deadline() + TimeInterval::Seconds(60));
    for (unsigned long long id : {2ULL, 3ULL}) EXPECT_EQ(*store.GetAction(id).Deadline(), *first[id - 1].Deadline());
    store.UpdateActions(second);
    store.UpdateActions({});
    EXPECT_EQ(store.GetAction(1).title.AsStringView(), "later");
    EXPECT_GT(*store.GetAction(1).Deadline(), Instant::Now());
}

// What is said at each of the moments, one a line.
std::string Phrases(std::initializer_list<long long> moments, bool exact, bool relative) {
    std::string phrases;
    for (long long remaining : moments)
        phrases.append(FormattedDeadline(TimeInterval(remaining), exact, relative).AsStringView()).append("\n");
    return phrases;
}

TEST(DeadlineTextTest, EveryPhraseHasItsRange) {
    constexpr long long kMinute = TimeInterval::kMinute, kHour = TimeInterval::kHour, kSecond = TimeInterval::kSecond;
    EXPECT_EQ(Phrases({-1, 0, kSecond, kMinute, 61 * kSecond, 121 * kSecond, 5 * kMinute}, true, false),
              "0 seconds\n0 seconds\n1 second\n1 minute, 0 seconds\n1 minute, 1 second\n2 minutes, 1 second\n"
              "5 minutes, 0 seconds\n");
    EXPECT_EQ(Phrases({5 * kMinute + 1, kHour, 90 * kMinute, 90 * kMinute + 1, 24 * kHour, 36 * kHour, 36 * kHour + 1},
                      true, false),
              "5 minutes\n60 minutes\n1 hour\n2 hours\n24 hours\n1 day\n2 days\n");
    EXPECT_EQ(Phrases({-1, 0, 5 * kMinute, 5 * kMinute + 1}, false, false), "Overdue\nNow\nNow\n5 minutes\n");
    EXPECT_EQ(Phrases({-1, 0, 48 * kHour}, true, true), "Running...\n0 seconds from now\n2 days from now\n");
}

}  // namespace
