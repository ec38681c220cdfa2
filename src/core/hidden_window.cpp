#include "core/hidden_window.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>

#include <string_view>

#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"

namespace {

void HiddenWindowEventHandler(XEvent const& event) {
    if (event.type != ClientMessage || std::string_view(event.xclient.data.b, 4) != "open") return;
    QueueCommand(UICommandType::Show, 0, 0, 0);
}

}  // namespace

void CreateHiddenWindow() {
    if (!display) return;
    qenHidden = XtVaAppCreateShell("QENClientUIHiddenWindow", nullptr, applicationShellWidgetClass, display, XtNwidth,
                                   32, XtNheight, 32, XtNmappedWhenManaged, False, nullptr);
    XtRealizeWidget(qenHidden);
    OnNonmaskableEvent(qenHidden, HiddenWindowEventHandler);
    LeadDialogShells();
}
