#include "localisation/action_summary.h"

#include <gtest/gtest.h>

#include <string>

#include "localisation/action_sentences.h"
#include "localisation/deadline_text.h"
#include "localisation/summary_row.h"

namespace {

// The sentence that the facts call for, put together from its parts: what the tables hold whole.
struct Wording {
    char const* save;
    char const* save_as;  // Begins the sentence that a restart or shutdown ends.
    char const* they;
    char const* will;
    char const* complete;
    char const* within;
    char const* now;
    char const* automatic;
};
constexpr Wording kWordings[] = {
    {"You should save your work before taking this action", "as it will require a system ", "This action",
     " will require a system ", "", "You must take this action within {DeadlineText}.",
     "You must take this action now.", "This action will run automatically in {DeadlineText}."},
    {"You should save your work before taking the selected actions", "as they will require a system ",
     "The selected actions", " will require a system ", " when they are complete",
     "There is at least one selected action you must take within {DeadlineText}.",
     "There is at least one selected action you must take now.",
     "At least one of the selected actions will run automatically in {DeadlineText}."},
    {"You should save your work before taking these actions", "as they will require a system ", "The pending actions",
     " will require a system ", " when they are complete",
     "There is at least one action you must take within {DeadlineText}.",
     "There is at least one action you must take now.",
     "At least one of these actions will run automatically in {DeadlineText}."}};

std::string Expected(ActionFamily family, SummaryFacts const& facts) {
    auto const& words = kWordings[static_cast<int>(family)];
    std::string after = facts.restart ? "restart" : "";
    if (facts.shutdown && (family != ActionFamily::One || !facts.restart)) after = "shutdown";
    std::string deadline = !facts.has_deadline ? ""
                           : facts.forced      ? words.automatic
                           : facts.soon        ? words.now
                                               : words.within;
    if (family == ActionFamily::Pending && after == "restart" && deadline == words.within) after = "";

    std::string text;
    if (facts.save) text = words.save + (after.empty() ? std::string(".") : std::string(", ") + words.save_as);
    if (!after.empty() && !facts.save) text = std::string(words.they) + words.will;
    if (!after.empty()) text += after + words.complete + ".";
    return text.empty() || deadline.empty() ? text + deadline : text + "  " + deadline;
}

TEST(ActionSummaryTest, EveryCombinationOfFactsYieldsItsSentence) {
    ActionSentences const* const families[] = {&kOneActionSentences, &kSelectedActionsSentences,
                                               &kPendingActionsSentences};
    for (int family = 0; family < 3; ++family)
        for (unsigned bits = 0; bits < 64; ++bits) {
            SummaryFacts const facts{(bits & 1) != 0, (bits & 2) != 0,  (bits & 4) != 0,
                                     (bits & 8) != 0, (bits & 16) != 0, (bits & 32) != 0};
            auto const row = static_cast<std::size_t>(SummaryRow(static_cast<ActionFamily>(family), facts));
            EXPECT_EQ((*families[family])[row], Expected(static_cast<ActionFamily>(family), facts))
                << family << " " << bits;
        }
}

ActionRequest Due(unsigned long long id, long long secondsFromNow) {
    ActionRequest action;
    action.id = id;
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Seconds(secondsFromNow), TimeZone());
    return action;
}

TEST(ActionSummaryTest, OfASetTheEarliestDeadlineDecidesAndTheLowestIDAmongEquals) {
    auto late = Due(1, 7200 + 60), near = Due(2, 3600 + 60), equal = Due(3, 3600 + 60), none = ActionRequest();
    late.force_run = true;
    equal.deadline = near.deadline;
    equal.force_run = true;
    none.id = 4;
    none.force_run = none.request_save = true;
    ActionRequestStore store;
    ActionRequest const all[] = {late, near, equal, none};
    store.UpdateActions(all);
    auto summary = [&](std::set<unsigned long long> ids, bool pending) {
        return std::string(ActionSummary(ids, store, pending).AsStringView());
    };
    EXPECT_EQ(summary({1, 2, 3}, true), "There is at least one action you must take within 1 hour.");
    EXPECT_EQ(summary({1, 3}, true), "At least one of these actions will run automatically in 1 hour.");
    EXPECT_EQ(summary({4}, false), "You should save your work before taking the selected actions.");
    EXPECT_EQ(summary({}, true), "");
    EXPECT_THROW(summary({5}, true), NoSuchActionRequestID);
    EXPECT_EQ(ActionSummary(late).AsStringView(), "This action will run automatically in 2 hours.");
}

TEST(ActionRequestStoreTest, UpdatesOverwriteAndRaiseNearForcedDeadlines) {
    auto near = Due(1, 240), far = Due(2, 360), unforced = Due(3, 240), later = Due(1, -10);
    near.force_run = far.force_run = later.force_run = true;
    later.SetTitle("later");
    ActionRequestStore store;
    ActionRequest const first[] = {near, far, unforced}, second[] = {later};
    store.UpdateActions(first);
    EXPECT_GE(*store.GetAction(1).Deadline(), *near.Deadline() + TimeInterval::Seconds(60));
    EXPECT_EQ(*store.GetAction(2).Deadline(), *far.Deadline());
    EXPECT_EQ(*store.GetAction(3).Deadline(), *unforced.Deadline());
    store.UpdateActions(second);
    store.UpdateActions({});
    EXPECT_EQ(store.GetAction(1).title.AsStringView(), "later");
    EXPECT_GT(*store.GetAction(1).Deadline(), Instant::Now());
    EXPECT_TRUE(store.HasAction(3));
    store.RemoveAction(3);
    EXPECT_THROW(store.RemoveAction(3), NoSuchActionRequestID);
    EXPECT_THROW(store.GetAction(3), NoSuchActionRequestID);
}

TEST(DeadlineTextTest, EveryPhraseHasItsRange) {
    constexpr long long kMinute = TimeInterval::kMinute, kHour = TimeInterval::kHour, kSecond = TimeInterval::kSecond;
    struct {
        long long remaining;
        char const* plain;
        char const* exact;
        char const* relative;
        char const* exact_relative;
    } const cases[] = {{-1, "Overdue", "0 seconds", "Overdue", "Running..."},
                       {0, "Now", "0 seconds", "Now", "0 seconds from now"},
                       {kSecond, "Now", "1 second", "Now", "1 second from now"},
                       {kMinute, "Now", "1 minute, 0 seconds", "Now", "1 minute, 0 seconds from now"},
                       {61 * kSecond, "Now", "1 minute, 1 second", "Now", "1 minute, 1 second from now"},
                       {121 * kSecond, "Now", "2 minutes, 1 second", "Now", "2 minutes, 1 second from now"},
                       {5 * kMinute, "Now", "5 minutes, 0 seconds", "Now", "5 minutes, 0 seconds from now"},
                       {5 * kMinute + 1, "5 minutes", "5 minutes", "5 minutes from now", "5 minutes from now"},
                       {kHour, "60 minutes", "60 minutes", "60 minutes from now", "60 minutes from now"},
                       {kHour + 1, "1 hour", "1 hour", "1 hour from now", "1 hour from now"},
                       {90 * kMinute, "1 hour", "1 hour", "1 hour from now", "1 hour from now"},
                       {90 * kMinute + 1, "2 hours", "2 hours", "2 hours from now", "2 hours from now"},
                       {24 * kHour, "24 hours", "24 hours", "24 hours from now", "24 hours from now"},
                       {36 * kHour, "1 day", "1 day", "1 day from now", "1 day from now"},
                       {36 * kHour + 1, "2 days", "2 days", "2 days from now", "2 days from now"}};
    for (auto const& c : cases) {
        TimeInterval const left(c.remaining);
        EXPECT_EQ(FormattedDeadline(left, false, false).AsStringView(), c.plain);
        EXPECT_EQ(FormattedDeadline(left, true, false).AsStringView(), c.exact);
        EXPECT_EQ(FormattedDeadline(left, false, true).AsStringView(), c.relative);
        EXPECT_EQ(FormattedDeadline(left, true, true).AsStringView(), c.exact_relative);
    }
}

}  // namespace
