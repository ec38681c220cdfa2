#include "dialogs/action_request_contents.h"

#include <gtest/gtest.h>

#include <string>

#include "dialogs/snooze_choices.h"

namespace {

using Text = SharedUString<UTF8>;

ActionRequest Action(unsigned long long id, char const* title) {
    ActionRequest action;
    action.id = id;
    action.SetTitle(title);
    return action;
}
ActionRequest Due(ActionRequest action, long long secondsFromNow) {
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Seconds(secondsFromNow), TimeZone());
    return action;
}
PendingActions List(std::initializer_list<ActionRequest> requests) {
    PendingActions list;
    for (auto const& request : requests) list.Append(request);
    return list;
}

// The texts, and what is allowed or seen.
std::string Spelled(ActionRequestContents const& c) {
    std::string spelled;
    for (auto* text : {&c.title, &c.description, &c.take_label, &c.cancel_label, &c.snooze_label})
        spelled.append(text->c_str()).append("|");
    bool const holds[] = {c.take_all, c.take, c.cancel, c.details, c.details_mapped, c.snooze_list, c.snooze_button};
    char const* const names[] = {" all", " take", " cancel", " details", " (details)", " list", " snooze"};
    for (std::size_t i = 0; i < std::size(holds); ++i) spelled += holds[i] ? names[i] : "";
    return spelled;
}

TEST(ActionRequestContentsTest, AnEmptyListCanOnlyBeClosed) {
    EXPECT_EQ(Spelled(MakeActionRequestContents({}, nullptr, true)),
              "There are no pending actions.||Take Action|Cancel Action|Close| snooze");
}

TEST(ActionRequestContentsTest, WithoutASelectionAllActionsAreDescribed) {
    auto one = Action(1, "A"), two = Action(2, "B");
    one.request_save = true;
    two.preview = Text();
    EXPECT_EQ(Spelled(MakeActionRequestContents(List({one, two}), nullptr, true)),
              "There are 2 pending actions.|You should save your work before taking these actions.|"
              "Take Actions|Cancel Actions|Snooze| all (details) list snooze");
    EXPECT_STREQ(MakeActionRequestContents(List({one}), nullptr, true).title.c_str(), "There is 1 pending action.");
}

TEST(ActionRequestContentsTest, ASelectedActionIsDescribedAndDecidesWhatIsAllowed) {
    auto one = Action(7, "Braces {x}"), two = Action(8, "B");
    one.SetDescription("What it does");
    one.restart = one.cancellable = true;
    two.preview = Text();
    auto const list = List({one, two, Action(7, "second of its ID")});
    unsigned long long const seven = 7, eight = 8, nine = 9;
    EXPECT_EQ(Spelled(MakeActionRequestContents(list, &seven, false)),
              "Braces {x}|What it does\n\nThis action will require a system restart.|"
              "Take Action|Cancel Action|Snooze| all take cancel (details)");
    EXPECT_EQ(Spelled(MakeActionRequestContents(list, &eight, false)),
              "B|\n\n|Take Action|Cancel Action|Snooze| all take details (details)");
    EXPECT_THROW(MakeActionRequestContents(list, &nine, true), NoSelectedAction);
}

TEST(ActionRequestContentsTest, ANearOrPastDeadlineForbidsSnoozing) {
    for (auto [seconds, allowed] : {std::pair(360, true), {290, false}, {-5, false}}) {
        auto contents = MakeActionRequestContents(List({Action(1, "A"), Due(Action(2, "B"), seconds)}), nullptr, true);
        EXPECT_EQ(contents.snooze_list, allowed) << seconds;
        EXPECT_EQ(contents.snooze_button, allowed) << seconds;
        EXPECT_TRUE(contents.any_deadline);
    }
}

TEST(ActionRequestContentsTest, AForcedDeadlineCountsDownOnlyForTheSelectedAction) {
    auto forced = Due(Action(1, "A"), 90);
    forced.force_run = true;
    unsigned long long const id = 1;
    auto const list = List({forced});
    EXPECT_STREQ(MakeActionRequestContents(list, nullptr, true).description.c_str(),
                 "At least one of these actions will run automatically in 5 minutes, 0 seconds.");
    auto contents = MakeActionRequestContents(list, &id, true);
    EXPECT_EQ(
        std::string(contents.description.c_str()).rfind("\n\nThis action will run automatically in 1 minute, ", 0), 0u);
    EXPECT_EQ(contents.earliest_deadline, *list[0].Deadline());
}

TEST(ActionRequestContentsTest, RowsShowTitleAndDeadline) {
    auto rows = MakeActionRows(List({Action(1, "Plain"), Due(Action(2, "Due"), 0)}));
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_STREQ(rows[0].c_str(), "Plain");
    // "Due  --  Sun, 05 Jan 2014 07:05:09"
    EXPECT_EQ(std::string(rows[1].c_str()).rfind("Due  --  ", 0), 0u);
    EXPECT_EQ(std::string(rows[1].c_str()).size(), 34u);
    EXPECT_STREQ(MakeActionListHeader().c_str(), "Title  --  Deadline");
    EXPECT_STREQ(MakeCountLine(5, true).c_str(), "1 action selected");
}

TEST(SnoozeChoicesTest, TheProposedRowIsTheClosest) {
    auto const with = MakeSnoozeChoices(true), without = MakeSnoozeChoices(false);
    std::pair<long long, char const*> const cases[] = {
        {300, "in 5 minutes"}, {420, "in 5 minutes"}, {450, "in 5 minutes"},    {451, "in 10 minutes"},
        {864000, "in 5 days"}, {0, "in 1 minute"},    {INT64_MAX, "in 5 days"}, {90 * 60, "in 1 hour"}};
    for (auto const& [seconds, label] : cases) {
        auto const row = DefaultSnoozeRow(without, TimeInterval::Seconds(seconds));
        EXPECT_EQ(without.at(static_cast<std::size_t>(row)).label.AsStringView(), label) << seconds;
    }
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval::Minutes(5)), 3);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval::Minutes(-5)), 1);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval(INT64_MIN)), 0);
}

}  // namespace
