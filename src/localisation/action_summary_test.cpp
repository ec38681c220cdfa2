#include "localisation/action_summary.h"

#include <gtest/gtest.h>

#include <string>

#include "localisation/action_sentences.h"
#include "localisation/deadline_text.h"

namespace {

ActionRequest Due(unsigned long long id, long long seconds_from_now, bool forced) {
    ActionRequest action;
    action.id = id;
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Seconds(seconds_from_now), TimeZone());
    action.force_run = forced;
    return action;
}

// The three summaries that the action alone has: by itself, as a selection, as the pending list.
std::string Summary(ActionRequest const& action, int family) {
    ActionRequestStore store;
    store.UpdateActions({&action, 1});
    auto const text = family == 0 ? ActionSummary(action) : ActionSummary({action.id}, store, family == 2);
    return std::string(text.AsStringView());
}

// Which rows of each family are meant without work to save; with it, it is the row behind each. The columns: without a
// deadline, with one two hours away, with one two minutes away, with a forced one.
struct Rows {
    bool restart, shutdown;
    int of[3][4];
};
constexpr Rows kRows[] = {{false, false, {{0, 2, 12, 18}, {0, 2, 12, 18}, {0, 2, 12, 18}}},
                          {true, false, {{4, 6, 14, 20}, {4, 6, 14, 20}, {4, 2, 14, 20}}},
                          {false, true, {{8, 10, 16, 22}, {8, 10, 16, 22}, {8, 10, 16, 22}}},
                          {true, true, {{4, 6, 14, 20}, {8, 10, 16, 22}, {8, 10, 16, 22}}}};
ActionSentences const* const families[] = {&kOneActionSentences, &kSelectedActionsSentences, &kPendingActionsSentences};

TEST(ActionSummaryTest, TheFlagsAndTheDeadlineChooseTheSentence) {
    ActionRequest const due[] = {{}, Due(0, 7260, false), Due(0, 120, false), Due(0, 7260, true)};
    for (Rows const& rows : kRows)
        for (int i = 0; i < 24; ++i) {
            int const family = i / 8, when = i / 2 % 4, save = i % 2;
            ActionRequest action = due[when];
            action.request_save = save == 1;
            action.restart = rows.restart;
            action.shutdown = rows.shutdown;
            std::string sentence = (*families[family])[static_cast<std::size_t>(rows.of[family][when] + save)];
            if (auto at = sentence.find("{DeadlineText}"); at != sentence.npos) sentence.replace(at, 14, "2 hours");
            EXPECT_EQ(Summary(action, family), sentence) << family << when;
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
