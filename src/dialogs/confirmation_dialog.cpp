#include "dialogs/confirmation_dialog.h"

#include <algorithm>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/toolkit/dialog_window.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "localisation/uformat.h"

namespace {

auto& window = NeverDestroyed<DialogWindow>("ConfirmationDialog");
unsigned long long asked_id = 0;

// Pixels; never reset, so that no question is narrower than the widest explanation seen.
int minimum_text_width = 500;

// More of a long title or explanation would push the buttons out of a small display.
constexpr int kMostLines = 4;

struct Texts {
    AutoNullTerminated<char> action_title;
    AutoNullTerminated<char> confirmation;
};

Texts TextsFor(unsigned long long id) {
    Texts texts;
    // The very entry that is asked about: another of its ID may stand before it.
    ActionRequest const* action = m_askedAbout ? &*m_askedAbout : actions.FindAction(id);
    if (action) texts.action_title = OneLine(MakeLocalString<UTF8>(action->title).c_str());
    if (action && action->pre_action_message)
        texts.confirmation = MakeLocalString<UTF8>(action->pre_action_message->Ref());
    return texts;
}

void Answer(UICommandType answer) {
    HideConfirmationRequestDialog();
    QueueCommand(answer, asked_id, 0, 0);
}

Widget AddExplanation(Widget title) {
    auto const text = ControlLiteral("This action requires you to acknowledge the following confirmation message:");
    Widget explanation =
        window.AddLabel("staticlabel", text.c_str(), {.below = title, .left = true, .most_lines = kMostLines});
    minimum_text_width = std::max(minimum_text_width, WidthOf(explanation));
    return explanation;
}

// "cancel" ends where the text ends; "ok" stands left of it, five border widths away. From "cancel" it takes Tab twice to
// come to "ok": somebody who types a name, Tab, a password and Return into another window accepts nothing.
void AddButtons(Widget text) {
    Widget ok = window.AddButton("ok", ControlLiteral("OK").c_str(),
                                 [] { Answer(UICommandType::ConfirmationAccepted); }, {.below = text});
    Widget cancel = window.AddButton("cancel", ControlLiteral("Cancel").c_str(),
                                     [] { Answer(UICommandType::ConfirmationDeclined); }, {.below = text});
    // A translation of either leaves the other its half.
    for (Widget button : {cancel, ok}) CutToWidth(button, (WidthOf(text) - 8 * BorderWidthOf(text)) / 2);
    window.AlignRight(cancel, text);
    window.AlignRight(ok, text, WidthOf(cancel) + 6 * BorderWidthOf(text));
    window.SetFirstFocus(cancel);
    window.SetEscape(cancel);
}

void Build(unsigned long long id) {
    asked_id = id;
    auto const texts = TextsFor(id);
    window.Open(ControlLiteral("Confirmation Required").c_str());
    Widget title = window.AddLabel("actiontitle", texts.action_title.c_str(), {.left = true, .most_lines = kMostLines});
    Widget explanation = AddExplanation(title);
    AddButtons(window.AddText("actionconfirmation", texts.confirmation.c_str(),
                              {.below = explanation, .width = minimum_text_width}));
    window.Present({.asked_for = true, .over = ActionRequestDialogShell()});
}

}  // namespace

void ShowConfirmationRequestDialog(unsigned long long id) {
    window.Build([id] { Build(id); });
    UpdateConfirmationRequestDialog();
}

void UpdateConfirmationRequestDialog() {}

void HideConfirmationRequestDialog() {
    window.Close();
}
