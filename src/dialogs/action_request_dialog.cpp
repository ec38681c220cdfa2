#include "dialogs/action_request_dialog.h"

#include <algorithm>
#include <utility>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_window.h"
#include "dialogs/snooze_choices.h"
#include "dialogs/toolkit/callbacks.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"

namespace {

struct Dialog {
    ActionRequestWindow window;
    bool enabled = false;
    bool expected = false;  // The user waits for it.
    bool update_wanted = false;
    std::vector<unsigned long long> ids;  // Of the rows, in their order.
    int selected_row = -1;
    int highlighted_row = -1;  // What the last refresh or press left highlighted.
    std::vector<SnoozeChoice> choices;
    int selected_choice = -1;
    Instant earliest_deadline{INT64_MAX};
    TimeInterval default_interval = TimeInterval::Minutes(5);
    bool snoozable = true;
};

// Never destroyed: the rows that the widgets borrow must outlive them.
Dialog& dialog = NeverDestroyed<Dialog>();

unsigned long long const* SelectedID() {
    return dialog.selected_row < 0 ? nullptr : &dialog.ids[static_cast<std::size_t>(dialog.selected_row)];
}
std::optional<unsigned long long> Selected() {
    auto const* id = SelectedID();
    return id ? std::optional(*id) : std::nullopt;
}

// ---- Handlers

void DecideAbout(UICommandType decision, unsigned long long id) {
    DisableActionRequestDialog();
    QueueCommand(decision, id, 0, 0);
}

void DecideAboutSelected(UICommandType decision) {
    if (auto const* id = SelectedID()) DecideAbout(decision, *id);
}

// Hides without disabling: the dialog comes back enabled. "Close", over an empty list, snoozes as well when a choice is
// selected, and puts off what has come by the time it is carried out: meant.
void SnoozePressed() {
    if (dialog.selected_choice >= 0) {
        int const minutes = dialog.choices[static_cast<std::size_t>(dialog.selected_choice)].minutes;
        HideActionRequestDialog();
        QueueCommand(UICommandType::Snooze, 0, minutes,
                     dialog.earliest_deadline.Microseconds() / TimeInterval::kSecond);
    }
    if (actions.empty()) HideActionRequestDialog();
}

// ---- Contents

void ForgetSelectionBeyond(std::size_t rows) {
    if (std::cmp_greater_equal(dialog.selected_row, rows)) dialog.selected_row = -1;
}

void HighlightSelection() {
    ForgetSelectionBeyond(dialog.ids.size());
    dialog.window.ActionList().Highlight(dialog.selected_row);
    dialog.highlighted_row = dialog.selected_row;
}

void FetchIDs() {
    dialog.ids.clear();
    for (auto const& action : actions) dialog.ids.push_back(action.id);
}

// A list that would look the same is left alone: a countdown refreshes every second, and each time would take the row
// from under a pressed button and scroll the reader back.
void RebuildRows() {
    auto rows = MakeActionRows(actions);
    FetchIDs();
    if (dialog.highlighted_row == dialog.selected_row && dialog.window.ActionList().Shows(rows)) return;
    dialog.window.ActionList().ShowRows(std::move(rows));
    HighlightSelection();
}

// The user's choice goes with each refresh: meant, the proposal is what counts until snoozing is pressed.
void RebuildChoices(bool any_deadline) {
    dialog.choices = MakeSnoozeChoices(any_deadline);
    std::vector<AutoNullTerminated<char>> rows;
    for (auto const& choice : dialog.choices) rows.push_back(OneLine(MakeLocalString<UTF8>(choice.label).c_str()));
    dialog.selected_choice = DefaultSnoozeRow(dialog.choices, dialog.default_interval);
    dialog.window.SnoozeList().ShowRows(std::move(rows));
    dialog.window.SnoozeList().Highlight(dialog.selected_choice);
}

void ShowContents(ActionRequestContents const& contents) {
    dialog.earliest_deadline = contents.earliest_deadline;
    dialog.window.ShowTexts(contents, SelectedID());
    dialog.window.ShowSensitivity(contents);
    if (contents.snooze_list) RebuildChoices(contents.any_deadline);
}

void RefreshContents() {
    ShowContents(MakeActionRequestContents(actions, SelectedID(), dialog.snoozable));
}

// A text that cannot be shown would stop every refresh to come: the dialog would stand still, over actions that nobody
// sees, and the client would not know. It ends like one that cannot be built.
template <class F>
void RefreshOrReport(F&& refresh) {
    try {
        refresh();
    } catch (NoSelectedAction const&) {
        throw;
    } catch (...) {
        dialog.window.ReportUnbuildable();
    }
}

// Where another action has come to be the selected one, the focus leaves the buttons: a key that was meant for the one
// before decides nothing.
void Refresh() {
    dialog.update_wanted = false;
    auto const selected = Selected();
    RefreshOrReport([] {
        RebuildRows();
        RefreshContents();
    });
    if (Selected() != selected) dialog.window.ResetFocus();
}

// The row that the list highlights, by the pointer or by the keyboard.
void SelectHighlighted() {
    if (!dialog.window.IsOpen() || !dialog.enabled) return;
    dialog.selected_row = HighlightedRow(dialog.window.ActionList().List());
    HighlightSelection();
    RefreshOrReport(RefreshContents);
}

void RowPressed(Widget, _XEvent const&) {
    SelectHighlighted();
}

// ---- Building

// Once a process: registered twice, the action would run twice. The list's own translations, which select the row, stay.
void ListenToRows() {
    [[maybe_unused]] static bool const once = (RegisterAction<RowPressed>("PostponeListSelect"), true);
    OverrideTranslations(dialog.window.ActionList().List(), "<Btn1Up>: Notify() PostponeListSelect()\n");
}

ActionRequestWindow::Handlers Handlers() {
    return {.take_all = [] { DecideAbout(UICommandType::TakeAll, 0); },
            .take = [] { DecideAboutSelected(UICommandType::Take); },
            .cancel = [] { DecideAboutSelected(UICommandType::Cancel); },
            .details = [] { DecideAboutSelected(UICommandType::ShowDetails); },
            .snooze = SnoozePressed,
            .row = [](int) { SelectHighlighted(); },
            .choice = [](int row) { dialog.selected_choice = row; }};
}

void Build(bool asked_for) {
    ForgetSelectionBeyond(actions.size());
    FetchIDs();
    auto const contents = MakeActionRequestContents(actions, SelectedID(), dialog.snoozable);
    dialog.window.Open(Handlers());
    ListenToRows();
    dialog.enabled = true;
    dialog.highlighted_row = -1;
    RebuildRows();
    ShowContents(contents);
    dialog.window.Present(asked_for);
}

}  // namespace

void ShowActionRequestDialog(bool, TimeInterval const& remind_interval, bool snoozable) {
    bool const expected = std::exchange(dialog.expected, false);
    if (!display || dialog.window.IsOpen()) return;
    dialog.default_interval = remind_interval;
    dialog.snoozable = snoozable;
    dialog.window.Build([expected] { Build(expected); });
}

void ExpectActionRequestDialog() {
    dialog.expected = true;
}

void DrawAttentionToActionRequestDialog() {
    dialog.window.SetUrgent();
}

void HideActionRequestDialog() {
    dialog.update_wanted = false;
    dialog.window.Close();
}

void UpdateActionRequestDialog() {
    if (!dialog.window.IsOpen() || !dialog.enabled) return;
    dialog.update_wanted = true;
    // At once: a list that is emptied and filled again before the refresh has no selection.
    ForgetSelectionBeyond(actions.size());
}

void RefreshActionRequestDialog() {
    if (dialog.update_wanted) Refresh();
}

void EnableActionRequestDialog() {
    if (!dialog.window.IsOpen()) return;
    dialog.window.SetAllSensitive(true);
    dialog.enabled = true;
    UpdateActionRequestDialog();
}

void DisableActionRequestDialog() {
    if (!dialog.window.IsOpen()) return;
    // Whatever becomes of the refresh, the decisions are closed.
    Guarded(RefreshActionRequestDialog);
    dialog.window.SetAllSensitive(false);
    // With that the list has forgotten its highlight.
    dialog.highlighted_row = -1;
    dialog.enabled = false;
}

Widget ActionRequestDialogShell() {
    return dialog.window.Shell();
}
bool IsActionRequestDialogShown() {
    return dialog.window.IsOpen();
}
bool IsActionRequestDialogEnabled() {
    return dialog.enabled;
}
