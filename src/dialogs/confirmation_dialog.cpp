#include "dialogs/confirmation_dialog.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>

#include <algorithm>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"
#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/text/local_encoding.h"
#include "localisation/uformat.h"

namespace {

Widget shell = nullptr;
unsigned long long asked_id = 0;

// Pixels; never reset, so that no question is narrower than the widest explanation seen.
int minimum_text_width = 500;

constexpr int kMargin = 4;  // Pixels around and between the widgets of a form.
constexpr int kMostTitleLines = 10;

struct Texts {
    AutoNullTerminated<char> window_title = ControlLiteral("Confirmation Required");
    AutoNullTerminated<char> ok = ControlLiteral("OK");
    AutoNullTerminated<char> cancel = ControlLiteral("Cancel");
    AutoNullTerminated<char> explanation =
        ControlLiteral("This action requires you to acknowledge the following confirmation message:");
    AutoNullTerminated<char> action_title;
    AutoNullTerminated<char> confirmation;
};

// The rest of a title of more lines is cut off: it would push the buttons out of the display.
AutoNullTerminated<char> FirstLines(AutoNullTerminated<char> const& title) {
    char const* end = title.c_str();
    for (int lines = 0; *end && (*end != '\n' || ++lines < kMostTitleLines); ++end) {
    }
    return {title.c_str(), end};
}

Texts TextsFor(unsigned long long id) {
    Texts texts;
    // The very entry that is asked about: another of its ID may stand before it.
    ActionRequest const* action = m_askedAbout ? &*m_askedAbout : actions.FindAction(id);
    if (action) texts.action_title = FirstLines(MakeLocalString<UTF8>(action->title));
    if (action && action->pre_action_message)
        texts.confirmation = MakeLocalString<UTF8>(action->pre_action_message->Ref());
    return texts;
}

void Answer(UICommandType answer) {
    HideConfirmationRequestDialog();
    QueueCommand(answer, asked_id, 0, 0);
}

Widget CreateLabel(Widget form, char const* name, AutoNullTerminated<char> const& text, Widget above) {
    return Create(form, name, labelWidgetClass,
                  {{XtNfromVert, above},
                   {XtNlabel, text.c_str()},
                   {XtNborderWidth, 0},
                   {XtNjustify, XtJustifyLeft},
                   {XtNinternational, true}});
}

// A wider window would stand with its buttons outside the display. An empty label without margins, as a user's resources
// may have it, would have no width, which the X server refuses.
void FitToDisplay(Widget label, AutoNullTerminated<char> const& text) {
    int const limit = DisplayWidthInPixels() - 4 * kMargin;
    if (WidthOf(label) == 0 || TextWidth(label, text.c_str()) > limit)
        Rewiden(label, std::min(TextWidth(label, text.c_str()), limit));
}

Widget CreateButton(Widget form, char const* name, AutoNullTerminated<char> const& label, Widget above) {
    return Create(form, name, commandWidgetClass,
                  {{XtNfromVert, above}, {XtNlabel, label.c_str()}, {XtNinternational, true}});
}

// "cancel" ends where the text ends; "ok" stands left of it, five border widths away.
void CreateButtons(Widget form, Texts const& texts, Widget text) {
    Widget cancel = CreateButton(form, "cancel", texts.cancel, text);
    int const border = BorderWidthOf(text);
    int const cancel_left = border + WidthOf(text) - WidthOf(cancel);
    SetResources(cancel, {{XtNhorizDistance, cancel_left}});
    Widget ok = CreateButton(form, "ok", texts.ok, text);
    SetResources(ok, {{XtNhorizDistance, cancel_left - 6 * border - WidthOf(ok)}});
    for (Widget button : {ok, cancel}) AnchorInForm(button, Anchor::BottomRight);
    OnPressed(ok, [] { Answer(UICommandType::ConfirmationAccepted); });
    OnPressed(cancel, [] { Answer(UICommandType::ConfirmationDeclined); });
}

void Build(unsigned long long id) {
    asked_id = id;
    Texts const texts = TextsFor(id);

    shell = CreateDialogShell("ConfirmationDialog", texts.window_title.c_str());
    Widget form = Create(shell, "form", formWidgetClass);
    Widget title = CreateLabel(form, "actiontitle", texts.action_title, nullptr);
    FitToDisplay(title, texts.action_title);
    Widget explanation = CreateLabel(form, "staticlabel", texts.explanation, title);
    minimum_text_width = std::max(minimum_text_width, WidthOf(explanation));
    Widget text = CreateReadOnlyText(form, "actionconfirmation", texts.confirmation.c_str(),
                                     {{XtNfromVert, explanation}, {XtNwidth, minimum_text_width}, {XtNheight, 100}});
    for (Widget label : {title, explanation}) AnchorInForm(label, Anchor::TopLeft);
    AnchorInForm(text, Anchor::AllSides);
    CreateButtons(form, texts, text);
    SetSensitive(text, false);

    RealizeDialogShell(shell);
    MakeScrollable(text);
    PresentDialogShell(shell, {.asked_for = true, .over = ActionRequestDialogShell()});
}

}  // namespace

void ShowConfirmationRequestDialog(unsigned long long id) {
    if (!display || shell) return;
    BuildOrReport("ConfirmationDialog", [&] { Build(id); });
    UpdateConfirmationRequestDialog();
}

void UpdateConfirmationRequestDialog() {}

void HideConfirmationRequestDialog() {
    DestroyDialogShell(shell);
}
