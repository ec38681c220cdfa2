#include "dialogs/toolkit/dialog_shell.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>

#include <utility>
#include <vector>

#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/widgets.h"

namespace {

// Those made before the hidden shell.
std::vector<Widget>& leaderless = *new std::vector<Widget>;

// It has a procedure because the toolkit warns of actions that have none.
void Nothing(Widget, XEvent const&) {}

}  // namespace

Widget CreateDialogShell(char const* name, char const* title) {
    static XtTranslations const closing = XtParseTranslationTable("<Message>WM_PROTOCOLS: SystemMenuClose()\n");
    // Nothing is typed into a dialog, so none opens an input method: that would read its long table of key sequences, or
    // wait for a server of its own.
    Widget shell =
        XtVaAppCreateShell(name, "XQENClientUI", applicationShellWidgetClass, display, XtNtitle, title, XtNiconName,
                           title, XtNmappedWhenManaged, False, XtNallowShellResize, True, XtNinput, True, XtNwindowRole,
                           name, XtNclientLeader, qenHidden, "openIm", False, nullptr);
    XtOverrideTranslations(shell, closing);
    if (!qenHidden) leaderless.push_back(shell);
    return shell;
}

void LeadDialogShells() {
    for (Widget shell : std::exchange(leaderless, {})) SetResources(shell, {{XtNclientLeader, qenHidden}});
}

void SetDialogTitle(Widget shell, char const* title) {
    SetResources(shell, {{XtNtitle, title}, {XtNiconName, title}});
    SetUtf8Title(shell, title);
}

void RealizeDialogShell(Widget shell) {
    XtRealizeWidget(shell);
}

void PresentDialogShell(Widget shell, WindowTraits const& traits) {
    CenterDialogOnDisplay(shell);
    Atom close = XInternAtom(display, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(display, XtWindow(shell), &close, 1);
    SetWindowProperties(shell, traits);
    XtMapWidget(shell);
}

void DestroyDialogShell(Widget& shell) {
    Widget dying = std::exchange(shell, nullptr);
    if (!dying) return;
    std::erase(leaderless, dying);
    XtDestroyWidget(dying);
}

void CenterDialogOnDisplay(Widget shell) {
    int screen = DefaultScreen(display);
    SetResources(shell, {{XtNx, (DisplayWidth(display, screen) - WidthOf(shell)) / 2},
                         {XtNy, (DisplayHeight(display, screen) - HeightOf(shell)) / 2}});
}

void SystemMenuClose(Widget widget, XEvent const& event) {
    Display* connection = XtDisplay(widget);
    Atom close = XInternAtom(connection, "WM_DELETE_WINDOW", True);
    Atom protocols = XInternAtom(connection, "WM_PROTOCOLS", True);
    if (event.type != ClientMessage || event.xclient.message_type != protocols) return;
    if (static_cast<Atom>(event.xclient.data.l[0]) == close) ExitCleanup(0, "CLOSED");
}

void RegisterDialogActions() {
    RegisterAction<SystemMenuClose>("SystemMenuClose");
    RegisterAction<Nothing>("Nothing");
}
