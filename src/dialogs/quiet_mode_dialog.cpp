#include "dialogs/quiet_mode_dialog.h"

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
#include "dialogs/toolkit/widgets.h"
#include "localisation/localized_strings.h"
#include "localisation/uformat.h"

namespace {

Widget shell = nullptr;

// Pixels, of the widest explanation seen; it widens nothing.
int minimum_label_width = 500;

void Close() {
    RemoveQuietModeDialog();
    QueueCommand(UICommandType::QuietNoticeClosed, 0, 0, 0);
}

void Build(Instant const& start, Instant const& end) {
    auto title = ControlLiteral("Not Currently Available");
    auto explanation = LocalizedStrings::QuietModeExplanation(start, end);
    auto ok_label = ControlLiteral("OK");

    shell = CreateDialogShell("QuietModeDialog", title.c_str());
    Widget form = Create(shell, "form", formWidgetClass);
    Widget label = Create(form, "staticlabel", labelWidgetClass,
                          {{XtNborderWidth, 0}, {XtNlabel, explanation.c_str()}, {XtNinternational, true}});
    minimum_label_width = std::max(minimum_label_width, WidthOf(label));
    Widget ok = Create(form, "ok", commandWidgetClass,
                       {{XtNfromVert, label}, {XtNlabel, ok_label.c_str()}, {XtNinternational, true}});
    SetResources(ok, {{XtNhorizDistance, BorderWidthOf(label) + (WidthOf(label) - WidthOf(ok)) / 2}});
    for (Widget child : {label, ok}) AnchorInForm(child, Anchor::TopLeft);
    OnPressed(ok, Close);

    RealizeDialogShell(shell);
    PresentDialogShell(shell, {.over = ActionRequestDialogShell()});
}

}  // namespace

void ShowQuietModeDialog(Instant const& start, Instant const& end) {
    if (!display || shell) return;
    BuildOrReport("QuietModeDialog", [&] { Build(start, end); });
}

void RemoveQuietModeDialog() {
    DestroyDialogShell(shell);
}
