#include "dialogs/message_dialogs.h"

#include <algorithm>
#include <list>

#include "core/process/process_state.h"
#include "dialogs/toolkit/dialog_window.h"
#include "dialogs/toolkit/read_only_text.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "foundation/time/instant.h"
#include "localisation/uformat.h"

namespace {

constexpr Instant kNever{0};

struct MessageDialog {
    MessageRequest request;
    Instant expiry = kNever;
    DialogWindow window{"MessageDialog"};  // Not open while the message waits for the display.
    Widget text = nullptr;

    // Both in the locale's encoding.
    AutoNullTerminated<char> Title() const;
    AutoNullTerminated<char> Message() const;
};

// In opening order. Never destroyed: the process may exit from anywhere.
std::list<MessageDialog>& dialogs = NeverDestroyed<std::list<MessageDialog>>();

AutoNullTerminated<char> MessageDialog::Title() const {
    if (request.is_completion_message) return ControlLiteral("Corvane notification:");
    return OneLine(MakeLocalString<UTF8>(request.title));
}

AutoNullTerminated<char> MessageDialog::Message() const {
    if (!request.is_completion_message) return MakeLocalString<UTF8>(request.message);
    return MakePlatformString(UFormat("Action \"{actionTitle}\" has completed.").With(request.title));
}

template <class Matches>
void RemoveFirst(Matches matches) {
    auto found = std::find_if(dialogs.begin(), dialogs.end(), matches);
    if (found != dialogs.end()) dialogs.erase(found);
}

void Open(MessageDialog& dialog) {
    dialog.window.Build([&dialog] {
        auto& window = dialog.window;
        window.Open(dialog.Title().c_str());
        dialog.text = window.AddText("actionmessage", dialog.Message().c_str());
        auto const dismiss = [&dialog] { RemoveFirst([&](auto const& open) { return &open == &dialog; }); };
        Widget button = window.AddButton("dismiss", ControlLiteral("OK").c_str(), dismiss, {.below = dialog.text});
        window.AlignRight(button, dialog.text);
        window.SetFirstFocus(button);
        window.SetEscape(button);
        window.Present({});
    });
}

void Refresh(MessageDialog& dialog) {
    auto title = dialog.Title();
    auto message = dialog.Message();
    dialog.window.SetTitle(title.c_str());
    SetText(dialog.text, message.c_str());
}

Instant ExpiryOf(MessageRequest const& request) {
    return request.timeout ? Instant::Now() + *request.timeout : kNever;
}

}  // namespace

void ShowMessageDialog(MessageRequest const& request) {
    auto dialog = std::find_if(dialogs.begin(), dialogs.end(),
                               [&](MessageDialog const& open) { return open.request.id == request.id; });
    if (dialog == dialogs.end()) dialog = dialogs.emplace(dialogs.end());
    dialog->request = request;
    dialog->expiry = ExpiryOf(request);
    if (dialog->window.IsOpen())
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
        dialog = over ? dialogs.erase(dialog) : std::next(dialog);
    }
}

void OpenWaitingMessageDialogs() {
    for (auto& dialog : dialogs) Open(dialog);
}
