#include "dialogs/action_request_dialog.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>

#include <algorithm>
#include <optional>
#include <string>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_contents.h"
#include "dialogs/snooze_choices.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"
#include "dialogs/toolkit/list_pane.h"
#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "localisation/localized_strings.h"
#include "localisation/uformat.h"

namespace {

constexpr int kGap = 4;  // Pixels between neighbours.
constexpr int kSnoozeListWidth = 400;
constexpr char const* kName = "ActionRequestDialog";

struct Dialog {
    Widget shell = nullptr;
    Widget title = nullptr;
    Widget description = nullptr;
    ListPane action_list;
    Widget take_all = nullptr;
    Widget take = nullptr;
    Widget cancel = nullptr;
    Widget details = nullptr;
    ListPane snooze_list;
    Widget snooze = nullptr;

    bool enabled = false;
    bool update_wanted = false;
    std::vector<unsigned long long> ids;  // Of the rows, in their order.
    int selected_row = -1;
    int highlighted_row = -1;  // What the last refresh or press left highlighted.
    std::vector<SnoozeChoice> choices;
    int selected_choice = -1;
    Instant earliest_deadline{INT64_MAX};
    TimeInterval default_interval = TimeInterval::Minutes(5);
    bool snoozable = true;
    std::string shown_description;                   // What the text widget holds,
    std::optional<unsigned long long> described_id;  // of this action, or of all.
};

// Never destroyed: the rows that the widgets borrow must outlive them.
Dialog& dialog = NeverDestroyed<Dialog>();

unsigned long long const* SelectedID() {
    return dialog.selected_row < 0 ? nullptr : &dialog.ids[static_cast<std::size_t>(dialog.selected_row)];
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
    dialog.action_list.Highlight(dialog.selected_row);
    dialog.highlighted_row = dialog.selected_row;
}

// A list that would look the same is left alone: a countdown refreshes every second, and each time would take the row
// from under a pressed button and scroll the reader back.
void RebuildRows() {
    auto rows = MakeActionRows(actions);
    dialog.ids.clear();
    for (auto const& action : actions) dialog.ids.push_back(action.id);
    if (dialog.highlighted_row == dialog.selected_row && dialog.action_list.Shows(rows)) return;
    dialog.action_list.ShowRows(std::move(rows));
    HighlightSelection();
}

// The user's choice goes with each refresh: meant, the proposal is what counts until snoozing is pressed.
void RebuildChoices(bool anyDeadline) {
    dialog.choices = MakeSnoozeChoices(anyDeadline);
    std::vector<AutoNullTerminated<char>> rows;
    for (auto const& choice : dialog.choices) rows.push_back(MakeLocalString<UTF8>(choice.label));
    dialog.selected_choice = DefaultSnoozeRow(dialog.choices, dialog.default_interval);
    dialog.snooze_list.ShowRows(std::move(rows));
    dialog.snooze_list.Highlight(dialog.selected_choice);
}

// What is being read stays in view while its countdown runs.
void ShowDescription(AutoNullTerminated<char> const& text) {
    auto const* id = SelectedID();
    auto const described = id ? std::optional(*id) : std::nullopt;
    auto const view = described == dialog.described_id ? View::Kept : View::FromTheBeginning;
    dialog.described_id = described;
    if (dialog.shown_description == text.c_str()) return;
    dialog.shown_description = text.c_str();
    SetText(dialog.description, text.c_str(), view);
}

// The label is one line high: of several it would show those in the middle.
std::string OneLine(char const* text) {
    std::string line = text;
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

void ShowTexts(ActionRequestContents const& contents) {
    SetResources(dialog.title, {{XtNlabel, OneLine(contents.title.c_str()).c_str()}});
    SetResources(dialog.take, {{XtNlabel, contents.take_label.c_str()}});
    SetResources(dialog.cancel, {{XtNlabel, contents.cancel_label.c_str()}});
    SetResources(dialog.snooze, {{XtNlabel, contents.snooze_label.c_str()}});
    ShowDescription(contents.description);
}

void ShowSensitivity(ActionRequestContents const& contents) {
    SetSensitive(dialog.take_all, contents.take_all);
    SetSensitive(dialog.take, contents.take);
    SetSensitive(dialog.cancel, contents.cancel);
    SetSensitive(dialog.details, contents.details);
    SetSensitive(dialog.snooze, contents.snooze_button);
    SetSensitive(dialog.snooze_list.List(), contents.snooze_list);
    SetMapped(dialog.details, contents.details_mapped);
}

// ---- Layout

int OuterWidthOf(Widget widget) {
    return WidthOf(widget) + 2 * BorderWidthOf(widget);
}

// Puts the buttons side by side and returns where the row ends, in pixels from the form's edge.
int LayOutButtonRow() {
    int left = kGap;
    for (Widget button : {dialog.take_all, dialog.take, dialog.cancel, dialog.details}) {
        SetResources(button, {{XtNhorizDistance, left}});
        left += OuterWidthOf(button) + kGap;
    }
    return left - kGap;
}

// The window is as wide as its buttons need: the texts and the list take the width of the wider row, and "snoozeButton"
// ends where they end, or where the display ends, if it has the room: without it nobody can snooze.
void LayOut() {
    dialog.snooze_list.Fit(kSnoozeListWidth);
    int const snooze_left = kGap + OuterWidthOf(dialog.snooze_list.Viewport()) + kGap;
    int const snooze_right = snooze_left + OuterWidthOf(dialog.snooze);
    int const right = std::max(LayOutButtonRow(), snooze_right);
    int const reachable_right = std::max(std::min(right, DisplayWidthInPixels() - 4 * kGap), snooze_right);
    SetResources(dialog.snooze, {{XtNhorizDistance, reachable_right - OuterWidthOf(dialog.snooze)}});

    int const width = right - kGap - 2 * BorderWidthOf(dialog.title);
    for (Widget wide : {dialog.title, dialog.description})
        if (WidthOf(wide) != ClampedSize(width)) Rewiden(wide, width);
    dialog.action_list.Fit(width);
}

void RefreshContents() {
    auto const contents = MakeActionRequestContents(actions, SelectedID(), dialog.snoozable);
    dialog.earliest_deadline = contents.earliest_deadline;
    ShowTexts(contents);
    ShowSensitivity(contents);
    if (contents.snooze_list) RebuildChoices(contents.any_deadline);
    LayOut();
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
        ReportUnbuildableDialog(kName);
    }
}

void Refresh() {
    dialog.update_wanted = false;
    RefreshOrReport([] {
        RebuildRows();
        RefreshContents();
    });
}

void RowPressed(Widget, XEvent const&) {
    if (!dialog.shell || !dialog.enabled) return;
    dialog.selected_row = HighlightedRow(dialog.action_list.List());
    HighlightSelection();
    RefreshOrReport(RefreshContents);
}

// ---- Building

Widget CreateButton(Widget form, char const* name, AutoNullTerminated<char> const& label, Widget above) {
    return Create(form, name, commandWidgetClass,
                  {{XtNfromVert, above}, {XtNlabel, label.c_str()}, {XtNinternational, true}, {XtNresizable, true}});
}

Widget CreateLabel(Widget form, char const* name, AutoNullTerminated<char> const& text, Arguments arguments) {
    return Create(form, name, labelWidgetClass, {{XtNlabel, text.c_str()}, {XtNinternational, true}}, arguments);
}

// Once a process: registered twice, the action would run twice.
XtTranslations RowTranslations() {
    RegisterAction<RowPressed>("PostponeListSelect");
    return XtParseTranslationTable("<Btn1Up>: Notify() PostponeListSelect()\n");
}

void CreateActionPart(Widget form) {
    // The title keeps its width whatever it says.
    dialog.title = CreateLabel(form, "actiontitle", {}, {{XtNwidth, 500}, {XtNresize, false}});
    dialog.description =
        CreateReadOnlyText(form, "actiondesc", "", {{XtNfromVert, dialog.title}, {XtNwidth, 500}, {XtNheight, 70}});
    dialog.shown_description.clear();
    Widget header = CreateLabel(form, "actionListLabel", MakeActionListHeader(),
                                {{XtNfromVert, dialog.description}, {XtNvertDistance, 10}});
    dialog.action_list.Create(form, "viewport", 485, 100, {{XtNfromVert, header}});
    dialog.highlighted_row = -1;
    // Overridden, not replaced: the list's own translations select the row.
    static XtTranslations const pressed = RowTranslations();
    XtOverrideTranslations(dialog.action_list.List(), pressed);
}

void CreateActionButtons(Widget form) {
    Widget above = dialog.action_list.Viewport();
    dialog.take_all = CreateButton(form, "takeAllActions", LocalizedStrings::TakeAllActions(), above);
    dialog.take = CreateButton(form, "takeActions", ControlLiteral("Take Actions"), above);
    dialog.cancel = CreateButton(form, "cancelAction", ControlLiteral("Cancel Actions"), above);
    dialog.details = CreateButton(form, "actionDetails", LocalizedStrings::ActionHistoryTitle(), above);
    OnPressed(dialog.take_all, [] { DecideAbout(UICommandType::TakeAll, 0); });
    OnPressed(dialog.take, [] { DecideAboutSelected(UICommandType::Take); });
    OnPressed(dialog.cancel, [] { DecideAboutSelected(UICommandType::Cancel); });
    OnPressed(dialog.details, [] { DecideAboutSelected(UICommandType::ShowDetails); });
}

void CreateSnoozePart(Widget form) {
    Widget caption =
        CreateLabel(form, "snoozeLabel", LocalizedStrings::SnoozeCaption(), {{XtNfromVert, dialog.take_all}});
    dialog.snooze_list.Create(form, "snoozeViewport", kSnoozeListWidth, 40, {{XtNfromVert, caption}});
    dialog.snooze = CreateButton(form, "snoozeButton", ControlLiteral("Snooze"), caption);
    OnChosen(dialog.snooze_list.List(), [](int row) { dialog.selected_choice = row; });
    OnPressed(dialog.snooze, SnoozePressed);
}

// The layout is this dialog's own: the form keeps to it.
void AnchorAll(Widget form) {
    for (char const* name :
         {"actiontitle", "actiondesc", "actionListLabel", "viewport", "takeAllActions", "takeActions", "cancelAction",
          "actionDetails", "snoozeLabel", "snoozeViewport", "snoozeButton"})
        AnchorInForm(XtNameToWidget(form, name), Anchor::TopLeft);
}

// Everything has its text before the windows exist, and the final layout before they are seen.
void Build() {
    auto const title = ControlLiteral(LocalizedStrings::ActionRequestTitle());
    dialog.shell = CreateDialogShell(kName, title.c_str());
    Widget form = Create(dialog.shell, "form", formWidgetClass, {{XtNdefaultDistance, kGap}});
    CreateActionPart(form);
    CreateActionButtons(form);
    CreateSnoozePart(form);
    AnchorAll(form);
    dialog.enabled = true;
    Refresh();

    RealizeDialogShell(dialog.shell);
    LayOut();
    OverrideScrollbarTranslations(TextScrollbar(dialog.description));
    ScrollSelectedItemIntoView(dialog.action_list.Viewport(), dialog.action_list.List());
    ScrollSelectedItemIntoView(dialog.snooze_list.Viewport(), dialog.snooze_list.List());
    PresentDialogShell(dialog.shell, {.dialog = false});
}

void SetAllSensitive(bool sensitive) {
    for (Widget widget : {dialog.action_list.List(), dialog.take_all, dialog.take, dialog.cancel, dialog.details,
                          dialog.snooze_list.List(), dialog.snooze})
        SetSensitive(widget, sensitive);
}

}  // namespace

void ShowActionRequestDialog(bool, TimeInterval const& remindInterval, bool snoozable) {
    if (!display || dialog.shell) return;
    dialog.default_interval = remindInterval;
    dialog.snoozable = snoozable;
    BuildOrReport(kName, Build);
}

void HideActionRequestDialog() {
    dialog.update_wanted = false;
    DestroyDialogShell(dialog.shell);
}

void UpdateActionRequestDialog() {
    if (!dialog.shell || !dialog.enabled) return;
    dialog.update_wanted = true;
    // At once: a list that is emptied and filled again before the refresh has no selection.
    ForgetSelectionBeyond(actions.size());
}

void RefreshActionRequestDialog() {
    if (dialog.update_wanted) Refresh();
}

void EnableActionRequestDialog() {
    if (!dialog.shell) return;
    SetAllSensitive(true);
    dialog.enabled = true;
    UpdateActionRequestDialog();
}

void DisableActionRequestDialog() {
    if (!dialog.shell) return;
    // Whatever becomes of the refresh, the decisions are closed.
    Guarded(RefreshActionRequestDialog);
    SetAllSensitive(false);
    // With that the list has forgotten its highlight.
    dialog.highlighted_row = -1;
    dialog.enabled = false;
}

Widget ActionRequestDialogShell() {
    return dialog.shell;
}
bool IsActionRequestDialogShown() {
    return dialog.shell != nullptr;
}
bool IsActionRequestDialogEnabled() {
    return dialog.enabled;
}
