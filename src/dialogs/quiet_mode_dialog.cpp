#include "dialogs/quiet_mode_dialog.h"

#include <algorithm>

#include "core/process/ui_command.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/toolkit/dialog_window.h"
#include "foundation/base/never_destroyed.h"
#include "localisation/localized_strings.h"
#include "localisation/uformat.h"

namespace {

auto& window = NeverDestroyed<DialogWindow>("QuietModeDialog");

// Pixels, of the widest explanation seen; it widens nothing.
int minimum_label_width = 500;

constexpr int kMostLines = 10;

void Close() {
    RemoveQuietModeDialog();
    QueueCommand(UICommandType::QuietNoticeClosed, 0, 0, 0);
}

void Build(Instant const& start, Instant const& end) {
    window.Open(ControlLiteral("Not Currently Available").c_str());
    Widget label = window.AddLabel("staticlabel", LocalizedStrings::QuietModeExplanation(start, end).c_str(),
                                   {.most_lines = kMostLines});
    minimum_label_width = std::max(minimum_label_width, WidthOf(label));
    auto const traits = ButtonTraits{.below = label, .anchor = Anchor::TopLeft};
    Widget ok = window.AddButton("ok", ControlLiteral("OK").c_str(), Close, traits);
    window.Center(ok, label);
    window.SetFirstFocus(ok);
    window.SetEscape(ok);
    window.Present({.over = ActionRequestDialogShell()});
}

}  // namespace

void ShowQuietModeDialog(Instant const& start, Instant const& end) {
    window.Build([&] { Build(start, end); });
}

void RemoveQuietModeDialog() {
    window.Close();
}
