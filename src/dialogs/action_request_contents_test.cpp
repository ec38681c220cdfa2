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

TEST(ActionRequestContentsTest, AnEmptyListCanOnlyBeClosed) {
    auto contents = MakeActionRequestContents({}, nullptr, true);
    EXPECT_STREQ(contents.title.c_str(), "There are no pending actions.");
    EXPECT_STREQ(contents.description.c_str(), "");
    EXPECT_STREQ(contents.take_label.c_str(), "Take Action");
    EXPECT_STREQ(contents.cancel_label.c_str(), "Cancel Action");
    EXPECT_STREQ(contents.snooze_label.c_str(), "Close");
    EXPECT_TRUE(contents.snooze_button);
    EXPECT_FALSE(contents.take_all || contents.take || contents.cancel || contents.details || contents.snooze_list ||
                 contents.details_mapped);
}

TEST(ActionRequestContentsTest, WithoutASelectionAllActionsAreDescribed) {
    auto one = Action(1, "A"), two = Action(2, "B");
    one.request_save = true;
    two.preview = Text();
    auto contents = MakeActionRequestContents(List({one, two}), nullptr, true);
    EXPECT_STREQ(contents.title.c_str(), "There are 2 pending actions.");
    EXPECT_STREQ(contents.description.c_str(), "You should save your work before taking these actions.");
    EXPECT_STREQ(contents.take_label.c_str(), "Take Actions");
    EXPECT_STREQ(contents.cancel_label.c_str(), "Cancel Actions");
    EXPECT_STREQ(contents.snooze_label.c_str(), "Snooze");
    EXPECT_TRUE(contents.take_all && contents.details_mapped && contents.snooze_list && contents.snooze_button);
    EXPECT_FALSE(contents.take || contents.cancel || contents.details);
    EXPECT_STREQ(MakeActionRequestContents(List({one}), nullptr, true).title.c_str(), "There is 1 pending action.");
}

TEST(ActionRequestContentsTest, ASelectedActionIsDescribedAndDecidesWhatIsAllowed) {
    auto one = Action(7, "Braces {x}"), two = Action(8, "B");
    one.SetDescription("What it does");
    one.restart = one.cancellable = true;
    two.preview = Text();
    auto const list = List({one, two, Action(7, "second of its ID")});
    unsigned long long const seven = 7, eight = 8, nine = 9;
    auto contents = MakeActionRequestContents(list, &seven, false);
    EXPECT_STREQ(contents.title.c_str(), "Braces {x}");
    EXPECT_STREQ(contents.description.c_str(), "What it does\n\nThis action will require a system restart.");
    EXPECT_STREQ(contents.take_label.c_str(), "Take Action");
    EXPECT_STREQ(contents.cancel_label.c_str(), "Cancel Action");
    EXPECT_TRUE(contents.take_all && contents.take && contents.cancel && contents.details_mapped);
    EXPECT_FALSE(contents.details || contents.snooze_list || contents.snooze_button);
    contents = MakeActionRequestContents(list, &eight, false);
    EXPECT_TRUE(contents.take && contents.details);
    EXPECT_FALSE(contents.cancel);
    EXPECT_STREQ(contents.description.c_str(), "\n\n");
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
    auto const raised = *list[0].Deadline() - TimeInterval::Seconds(90) + TimeInterval::Seconds(300);
    EXPECT_STREQ(MakeActionRequestContents(list, nullptr, true).description.c_str(),
                 "At least one of these actions will run automatically in 5 minutes, 0 seconds.");
    auto contents = MakeActionRequestContents(list, &id, true);
    EXPECT_EQ(
        std::string(contents.description.c_str()).rfind("\n\nThis action will run automatically in 1 minute, ", 0), 0u);
    EXPECT_LT(contents.earliest_deadline, raised);
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
    ASSERT_EQ(with.size(), 19u);
    ASSERT_EQ(without.size(), 17u);
    struct {
        long long seconds;
        char const* label;
    } const cases[] = {{300, "in 5 minutes"}, {420, "in 5 minutes"}, {450, "in 5 minutes"},    {451, "in 10 minutes"},
                       {864000, "in 5 days"}, {0, "in 1 minute"},    {INT64_MAX, "in 5 days"}, {90 * 60, "in 1 hour"}};
    for (auto const& c : cases) {
        auto const interval = TimeInterval::Seconds(c.seconds);
        EXPECT_EQ(without[static_cast<std::size_t>(DefaultSnoozeRow(without, interval))].label.AsStringView(), c.label)
            << c.seconds;
    }
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval::Minutes(5)), 3);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval::Minutes(-5)), 1);
    EXPECT_EQ(DefaultSnoozeRow(with, TimeInterval(INT64_MIN)), 0);
}

}  // namespace
