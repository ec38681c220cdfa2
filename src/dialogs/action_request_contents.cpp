#include "dialogs/action_request_contents.h"

#include <algorithm>
#include <set>
#include <string>

#include "dialogs/action_request_store.h"
#include "foundation/text/local_encoding.h"
#include "localisation/action_summary.h"
#include "localisation/locale_text.h"
#include "localisation/uformat.h"

namespace {

constexpr char kSeparator[] = "  --  ";

AutoNullTerminated<char> Joined(AutoNullTerminated<char> const& left, AutoNullTerminated<char> const& right) {
    std::string text = std::string(left.c_str()) + kSeparator + right.c_str();
    return {text.data(), text.data() + text.size()};
}

ActionRequestContents EmptyContents() {
    ActionRequestContents contents;
    contents.title = MakeCountLine(0, false);
    contents.take_label = ControlLiteral("Take Action");
    contents.cancel_label = ControlLiteral("Cancel Action");
    contents.snooze_label = ControlLiteral("Close");
    contents.snooze_button = true;
    return contents;
}

ActionRequestStore StoreOf(PendingActions const& pending) {
    ActionRequestStore store;
    store.UpdateActions(pending.Copies());
    return store;
}

// The store raises deadlines that are near, the pending list does not: the unselected summary stands still at five
// minutes, a selected action counts down.
AutoNullTerminated<char> SummaryOfAll(PendingActions const& pending) {
    std::set<unsigned long long> ids;
    for (auto const& action : pending) ids.insert(action.id);
    return MakeLocalString<UTF8>(ActionSummary(ids, StoreOf(pending), true));
}

AutoNullTerminated<char> DescriptionOf(ActionRequest const& action) {
    return MakePlatformString(
        UFormat("{actionDescription}\n\n{actionSummary}").With(action.short_description, ActionSummary(action)));
}

void DescribeAll(ActionRequestContents& contents, PendingActions const& pending) {
    contents.title = MakeCountLine(pending.size(), false);
    contents.take_label = ControlLiteral("Take Actions");
    contents.cancel_label = ControlLiteral("Cancel Actions");
    contents.description = SummaryOfAll(pending);
}

void DescribeOne(ActionRequestContents& contents, ActionRequest const& action) {
    contents.title = MakePlatformString(UFormat("{actionTitle}").With(action.title));
    contents.take_label = ControlLiteral("Take Action");
    contents.cancel_label = ControlLiteral("Cancel Action");
    contents.description = DescriptionOf(action);
    contents.take = true;
    contents.cancel = action.cancellable;
    contents.details = !action.preview.IsNull();
}

// What the whole list decides, whichever row is selected.
void Survey(ActionRequestContents& contents, PendingActions const& pending, bool snoozable) {
    Instant const too_late = Instant::Now() + kNearDeadline;
    for (auto const& action : pending) {
        if (action.preview) contents.details_mapped = true;
        auto const deadline = action.Deadline();
        if (!deadline) continue;
        contents.any_deadline = true;
        contents.earliest_deadline = std::min(contents.earliest_deadline, *deadline);
        if (*deadline < too_late) snoozable = false;
    }
    contents.snooze_button = contents.snooze_list = snoozable;
}

}  // namespace

ActionRequestContents MakeActionRequestContents(PendingActions const& pending, unsigned long long const* selected,
                                                bool snoozable) {
    if (pending.empty()) return EmptyContents();
    ActionRequestContents contents;
    contents.snooze_label = ControlLiteral("Snooze");
    contents.take_all = true;
    Survey(contents, pending, snoozable);
    if (!selected) {
        DescribeAll(contents, pending);
        return contents;
    }
    ActionRequest const* action = pending.FindAction(*selected);
    if (!action) throw NoSelectedAction();
    DescribeOne(contents, *action);
    return contents;
}

std::vector<AutoNullTerminated<char>> MakeActionRows(PendingActions const& pending) {
    std::vector<AutoNullTerminated<char>> rows;
    rows.reserve(pending.size());
    for (auto const& action : pending) {
        auto row = MakeLocalString<UTF8>(action.title);
        if (auto const deadline = action.Deadline())
            row = Joined(row, MakeLocalString<UTF8>(UnixPlatform::FormattedLocalTime(*deadline)));
        rows.push_back(OneLine(row.c_str()));
    }
    return rows;
}

AutoNullTerminated<char> MakeActionListHeader() {
    return Joined(ControlLiteral("Title"), ControlLiteral("Deadline"));
}

AutoNullTerminated<char> MakeCountLine(std::size_t count, bool selected) {
    if (selected) return ControlLiteral("1 action selected");
    if (count == 0) return ControlLiteral("There are no pending actions.");
    if (count == 1) return ControlLiteral("There is 1 pending action.");
    return MakePlatformString(UFormat("There are {x} pending actions.").With(UnixPlatform::FormattedNumber(count)));
}
