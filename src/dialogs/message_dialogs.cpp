#include "dialogs/message_dialogs.h"

#include <cstdint>
#include <map>

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

// In opening order, which the places number, and the place of each ID. Never destroyed: the process may exit from
// anywhere.
using Place = std::uint64_t;
auto& dialogs = NeverDestroyed<std::map<Place, MessageDialog>>();
auto& places = NeverDestroyed<std::map<unsigned long long, Place>>();

AutoNullTerminated<char> MessageDialog::Title() const {
    if (request.is_completion_message) return ControlLiteral("Corvane notification:");
    return MakeLocalString<UTF8>(request.title);
}

AutoNullTerminated<char> MessageDialog::Message() const {
    if (!request.is_completion_message) return MakeLocalString<UTF8>(request.message);
    return MakePlatformString(UFormat("Action \"{actionTitle}\" has completed.").With(request.title));
}

// A new one is the last.
MessageDialog& DialogOf(unsigned long long id) {
    static Place next = 0;
    return dialogs[places.try_emplace(id, next++).first->second];
}

void Open(MessageDialog& dialog) {
    dialog.window.Build([&dialog] {
        auto& window = dialog.window;
        window.Open(dialog.Title().c_str());
        dialog.text = window.AddText("actionmessage", dialog.Message().c_str());
        auto const dismiss = [id = dialog.request.id] { RemoveMessageDialog(id); };
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
    MessageDialog& dialog = DialogOf(request.id);
    dialog.request = request;
    dialog.expiry = ExpiryOf(request);
    if (dialog.window.IsOpen())
        Refresh(dialog);
    else
        Open(dialog);
}

void RemoveMessageDialog(unsigned long long id) {
    auto const place = places.find(id);
    if (place == places.end()) return;
    dialogs.erase(place->second);
    places.erase(place);
}

void RemoveTimedoutMessageDialogs() {
    Instant const now = Instant::Now();
    for (auto next = dialogs.begin(); next != dialogs.end();) {
        auto const& dialog = next++->second;
        bool const over = dialog.expiry != kNever && dialog.expiry <= now;
        if (over) RemoveMessageDialog(dialog.request.id);
    }
}

void OpenWaitingMessageDialogs() {
    for (auto& [place, dialog] : dialogs) Open(dialog);
}
