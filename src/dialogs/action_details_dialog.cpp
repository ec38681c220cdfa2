#include "dialogs/action_details_dialog.h"

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/toolkit/dialog_window.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "localisation/uformat.h"

namespace {

// Never destroyed, like all dialogs: the process may exit from anywhere.
auto& window = NeverDestroyed<DialogWindow>("ActionDetailsDialog");

// Kept between dialogs.
auto& script = NeverDestroyed<AutoNullTerminated<char>>();

void FetchScript(unsigned long long id) {
    ActionRequest const* action = actions.FindAction(id);
    if (!action) return;
    script = action->preview ? MakeLocalString<UTF8>(action->preview->Ref()) : AutoNullTerminated<char>();
}

void Close() {
    HideActionDetailsDialog();
    QueueCommand(UICommandType::DetailsClosed, 0, 0, 0);
}

void Build() {
    window.Open(ControlLiteral("Action Script Preview").c_str());
    Widget text = window.AddText("actiondetails", script.c_str());
    Widget ok = window.AddButton("ok", ControlLiteral("OK").c_str(), Close, {.below = text});
    window.AlignRight(ok, text);
    window.SetFirstFocus(ok);
    window.SetEscape(ok);
    window.Present({.asked_for = true, .over = ActionRequestDialogShell()});
}

}  // namespace

void ShowActionDetailsDialog(unsigned long long id) {
    window.Build([id] {
        FetchScript(id);
        Build();
    });
    UpdateActionDetailsDialog();
}

void UpdateActionDetailsDialog() {}

void HideActionDetailsDialog() {
    window.Close();
}
