#include "localisation/action_summary.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "localisation/action_sentences.h"
#include "localisation/deadline_text.h"

namespace {

// What a family says in its own way.
struct Wording {
    ActionSentences const& sentences;
    std::string actions, they, the_actions, complete, must_take, run;
};
Wording const kWordings[] = {
    {kOneActionSentences, "this action", "it", "This action", "", "You must take this action", "This action"},
    {kSelectedActionsSentences, "the selected actions", "they", "The selected actions", " when they are complete",
     "There is at least one selected action you must take", "At least one of the selected actions"},
    {kPendingActionsSentences, "these actions", "they", "The pending actions", " when they are complete",
     "There is at least one action you must take", "At least one of these actions"}};

// The sentence that the facts call for, put together from its parts: what the tables hold whole.
std::string Expected(ActionFamily family, Wording const& words, SummaryFacts const& facts) {
    bool const within = facts.has_deadline && !facts.forced && !facts.soon;
    std::string after = facts.restart ? "restart" : "";
    if (facts.shutdown && (family != ActionFamily::One || !facts.restart)) after = "shutdown";
    if (family == ActionFamily::Pending && after == "restart" && within) after = "";

    std::string text = facts.save ? "You should save your work before taking " + words.actions : words.the_actions;
    if (!after.empty())
        text += (facts.save ? ", as " + words.they : "") + " will require a system " + after + words.complete;
    text += facts.has_deadline ? ".  " : ".";
    if (!facts.save && after.empty()) text = "";
    if (!facts.has_deadline) return text;
    if (facts.forced) return text + words.run + " will run automatically in {DeadlineText}.";
    return text + words.must_take + (facts.soon ? " now." : " within {DeadlineText}.");
}

TEST(ActionSummaryTest, EveryCombinationOfFactsYieldsItsSentence) {
    for (auto family : {ActionFamily::One, ActionFamily::Selected, ActionFamily::Pending})
        for (unsigned bits = 0; bits < 64; ++bits) {
            auto const& words = kWordings[static_cast<int>(family)];
            SummaryFacts const facts{(bits & 1) != 0, (bits & 2) != 0,  (bits & 4) != 0,
                                     (bits & 8) != 0, (bits & 16) != 0, (bits & 32) != 0};
            auto const row = static_cast<std::size_t>(SummaryRow(family, facts));
            EXPECT_EQ(words.sentences[row], Expected(family, words, facts)) << bits;
        }
}

ActionRequest Due(unsigned long long id, long long secondsFromNow, bool forced) {
    ActionRequest action;
    action.id = id;
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Seconds(secondsFromNow), TimeZone());
    action.force_run = forced;
    return action;
}

TEST(ActionSummaryTest, OfASetTheEarliestDeadlineDecidesAndTheLowestIDAmongEquals) {
    ActionRequest all[] = {Due(1, 7200 + 60, true), Due(2, 3600 + 60, false), Due(3, 0, true), Due(4, 0, true),
                           Due(5, 0, true)};
    all[2].deadline = all[1].deadline;
    all[3].deadline = all[4].deadline = {};
    all[3].request_save = true;
    ActionRequestStore store;
    store.UpdateActions(all);
    auto summary = [&](std::set<unsigned long long> ids, bool pending) {
        return std::string(ActionSummary(ids, store, pending).AsStringView());
    };
    EXPECT_EQ(summary({1, 2, 3}, true), "There is at least one action you must take within 1 hour.");
    EXPECT_EQ(summary({1, 3}, true), "At least one of these actions will run automatically in 1 hour.");
    EXPECT_EQ(summary({4, 5}, false), "You should save your work before taking the selected actions.");
    EXPECT_EQ(summary({}, true), "");
    EXPECT_THROW(summary({6}, true), NoSuchActionRequestID);
    EXPECT_EQ(ActionSummary(all[0]).AsStringView(), "This action will run automatically in 2 hours.");
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
