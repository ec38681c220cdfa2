#include "dialogs/toolkit/dialog_shell.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <unistd.h>

#include <string_view>
#include <utility>
#include <vector>

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/widgets.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"

namespace {

// Those made before the hidden shell.
std::vector<Widget>& leaderless = NeverDestroyed<std::vector<Widget>>();

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

namespace {

Atom AtomOf(char const* name) {
    return XInternAtom(display, name, False);
}

// A property of one 32-bit value, which Xlib takes in a long whatever its size.
void SetProperty(Widget shell, char const* name, Atom type, unsigned long value) {
    XChangeProperty(display, XtWindow(shell), AtomOf(name), type, 32, PropModeReplace,
                    reinterpret_cast<unsigned char*>(&value), 1);
}

}  // namespace

void SetUtf8Title(Widget shell, char const* title) {
    auto const text = UnixPlatform::ToUTF8(UStringRef<Local8Bit>(std::string_view(title)));
    XChangeProperty(display, XtWindow(shell), AtomOf("_NET_WM_NAME"), AtomOf("UTF8_STRING"), 8, PropModeReplace,
                    text.begin(), static_cast<int>(text.size()));
}

void SetWindowProperties(Widget shell, WindowTraits const& traits) {
    char* title = nullptr;
    XtVaGetValues(shell, XtNtitle, &title, nullptr);
    SetUtf8Title(shell, title ? title : "");
    SetProperty(shell, "_NET_WM_PID", XA_CARDINAL, static_cast<unsigned long>(getpid()));
    SetProperty(shell, "_NET_WM_WINDOW_TYPE", XA_ATOM,
                AtomOf(traits.dialog ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL"));
    if (!traits.asked_for) SetProperty(shell, "_NET_WM_USER_TIME", XA_CARDINAL, 0);
    if (traits.over) XSetTransientForHint(display, XtWindow(shell), XtWindow(traits.over));
}

void ReportUnbuildableDialog(char const* name) {
    ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::DialogNotShown, name);
    SendErrorToClient(error);
    ExitCleanup(0, "TranscodeError");
}
