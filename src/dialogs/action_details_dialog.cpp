#include "dialogs/action_details_dialog.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"
#include "dialogs/toolkit/read_only_text.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "localisation/uformat.h"

namespace {

Widget shell = nullptr;

// Kept between dialogs.
AutoNullTerminated<char>& Script() {
    static auto& script = NeverDestroyed<AutoNullTerminated<char>>();
    return script;
}

void FetchScript(unsigned long long id) {
    ActionRequest const* action = actions.FindAction(id);
    if (!action) return;
    Script() = action->preview ? MakeLocalString<UTF8>(action->preview->Ref()) : AutoNullTerminated<char>();
}

void Close() {
    HideActionDetailsDialog();
    QueueCommand(UICommandType::DetailsClosed, 0, 0, 0);
}

void Build(unsigned long long id) {
    FetchScript(id);
    auto title = ControlLiteral("Action Script Preview");
    auto label = ControlLiteral("OK");

    shell = CreateDialogShell("ActionDetailsDialog", title.c_str());
    Widget form = Create(shell, "form", formWidgetClass);
    Widget text = CreateReadOnlyText(form, "actiondetails", Script().c_str(), {{XtNwidth, 500}, {XtNheight, 100}});
    Widget ok = Create(form, "ok", commandWidgetClass,
                       {{XtNfromVert, text}, {XtNlabel, label.c_str()}, {XtNinternational, true}});
    SetResources(ok, {{XtNhorizDistance, BorderWidthOf(text) + WidthOf(text) - WidthOf(ok)}});
    AnchorInForm(text, Anchor::AllSides);
    AnchorInForm(ok, Anchor::BottomRight);
    OnPressed(ok, Close);
    SetSensitive(text, false);

    RealizeDialogShell(shell);
    MakeScrollable(text);
    PresentDialogShell(shell, {.asked_for = true, .over = ActionRequestDialogShell()});
}

}  // namespace

void ShowActionDetailsDialog(unsigned long long id) {
    if (!display || shell) return;
    BuildOrReport("ActionDetailsDialog", [&] { Build(id); });
    UpdateActionDetailsDialog();
}

void UpdateActionDetailsDialog() {}

void HideActionDetailsDialog() {
    DestroyDialogShell(shell);
}
