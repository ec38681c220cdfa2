#pragma once

#include <vector>

#include "core/process/process_state.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"

// What the action request dialog shows and allows, decided without a widget. All text is translated and in the locale's
// encoding; a text that it cannot represent throws (local_encoding.h).

// The selected row's action is no longer pending.
class NoSelectedAction : public DebuggableException {};

struct ActionRequestContents {
    AutoNullTerminated<char> title;  // The count line, or the selected action's title.
    AutoNullTerminated<char> description;
    AutoNullTerminated<char> take_label;
    AutoNullTerminated<char> cancel_label;
    AutoNullTerminated<char> snooze_label;

    // Which controls are sensitive while the dialog is enabled.
    bool action_list = true;
    bool take_all = false;
    bool take = false;
    bool cancel = false;
    bool details = false;
    bool snooze_button = false;
    bool snooze_list = false;

    bool details_mapped = false;
    bool any_deadline = false;
    // The earliest deadline as the client sent it; the last instant there is when no action has one.
    Instant earliest_deadline{INT64_MAX};
};

// What the dialog shows for the pending actions; `selected` is the ID of the selected row's action or null. `snoozable`
// is the client's setting: a deadline less than five minutes away, or past, forbids snoozing all the same. Throws
// NoSelectedAction.
ActionRequestContents MakeActionRequestContents(PendingActions const& pending, unsigned long long const* selected,
                                                bool snoozable);

// One row an action: its title and, where it has one, its deadline in local time.
std::vector<AutoNullTerminated<char>> MakeActionRows(PendingActions const& pending);

// The header above the rows, in the same form.
AutoNullTerminated<char> MakeActionListHeader();

// How many actions wait, or that one is selected.
AutoNullTerminated<char> MakeCountLine(std::size_t count, bool selected);
