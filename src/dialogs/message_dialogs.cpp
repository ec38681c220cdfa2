#include "dialogs/message_dialogs.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>

#include <algorithm>
#include <list>

#include "core/process/process_state.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"
#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "foundation/time/instant.h"
#include "localisation/uformat.h"

namespace {

constexpr Instant kNever{0};

struct MessageDialog {
    MessageRequest request;
    Instant expiry = kNever;
    Widget shell = nullptr;  // Null while the message waits for the display.
    Widget text = nullptr;

    // Both in the locale's encoding.
    AutoNullTerminated<char> Title() const;
    AutoNullTerminated<char> Message() const;
};

// In opening order. Never destroyed: the process may exit from anywhere.
std::list<MessageDialog>& dialogs = NeverDestroyed<std::list<MessageDialog>>();

AutoNullTerminated<char> MessageDialog::Title() const {
    if (request.is_completion_message) return ControlLiteral("Corvane notification:");
    return MakeLocalString<UTF8>(request.title);
}

AutoNullTerminated<char> MessageDialog::Message() const {
    if (!request.is_completion_message) return MakeLocalString<UTF8>(request.message);
    return MakePlatformString(UFormat("Action \"{actionTitle}\" has completed.").With(request.title));
}

template <class Matches>
void RemoveFirst(Matches matches) {
    auto found = std::find_if(dialogs.begin(), dialogs.end(), matches);
    if (found == dialogs.end()) return;
    DestroyDialogShell(found->shell);
    dialogs.erase(found);
}

void Dismiss(Widget shell) {
    RemoveFirst([shell](MessageDialog const& dialog) { return dialog.shell == shell; });
}

void Build(MessageDialog& dialog) {
    auto title = dialog.Title();
    auto message = dialog.Message();
    auto label = ControlLiteral("OK");

    Widget shell = dialog.shell = CreateDialogShell("MessageDialog", title.c_str());
    Widget form = Create(shell, "form", formWidgetClass);
    Widget text = dialog.text =
        CreateReadOnlyText(form, "actionmessage", message.c_str(), {{XtNwidth, 500}, {XtNheight, 100}});
    Widget dismiss = Create(form, "dismiss", commandWidgetClass,
                            {{XtNfromVert, text}, {XtNlabel, label.c_str()}, {XtNinternational, true}});
    SetResources(dismiss, {{XtNhorizDistance, WidthOf(text) + BorderWidthOf(text) - WidthOf(dismiss)}});
    AnchorInForm(text, Anchor::AllSides);
    AnchorInForm(dismiss, Anchor::BottomRight);
    OnPressed(dismiss, [shell] { Dismiss(shell); });
    SetSensitive(text, false);

    RealizeDialogShell(shell);
    MakeScrollable(text);
    PresentDialogShell(shell, {});
}

void Open(MessageDialog& dialog) {
    BuildOrReport("MessageDialog", [&] { Build(dialog); });
}

void Refresh(MessageDialog& dialog) {
    auto title = dialog.Title();
    auto message = dialog.Message();
    SetDialogTitle(dialog.shell, title.c_str());
    SetText(dialog.text, message.c_str());
}

Instant ExpiryOf(MessageRequest const& request) {
    return request.timeout ? Instant::Now() + *request.timeout : kNever;
}

}  // namespace

void ShowMessageDialog(MessageRequest const& request) {
    auto dialog = std::find_if(dialogs.begin(), dialogs.end(),
                               [&](MessageDialog const& open) { return open.request.id == request.id; });
    if (dialog == dialogs.end()) dialog = dialogs.insert(dialogs.end(), MessageDialog());
    dialog->request = request;
    dialog->expiry = ExpiryOf(request);
    if (!display) return;
    if (dialog->shell)
        Refresh(*dialog);
    else
        Open(*dialog);
}

void RemoveMessageDialog(unsigned long long id) {
    RemoveFirst([id](MessageDialog const& dialog) { return dialog.request.id == id; });
}

void RemoveTimedoutMessageDialogs() {
    Instant const now = Instant::Now();
    for (auto dialog = dialogs.begin(); dialog != dialogs.end();) {
        bool const over = dialog->expiry != kNever && dialog->expiry <= now;
        if (over) DestroyDialogShell(dialog->shell);
        dialog = over ? dialogs.erase(dialog) : std::next(dialog);
    }
}

void OpenWaitingMessageDialogs() {
    for (auto& dialog : dialogs)
        if (!dialog.shell) Open(dialog);
}
