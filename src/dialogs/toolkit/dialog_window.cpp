#include "dialogs/toolkit/dialog_window.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/read_only_text.h"
#include "foundation/base/never_destroyed.h"

namespace {

std::vector<DialogWindow*>& open_windows = NeverDestroyed<std::vector<DialogWindow*>>();

// It has a procedure because the toolkit warns of actions that have none.
void Nothing(Widget, XEvent const&) {}

Atom AtomOf(char const* name) {
    return XInternAtom(display, name, False);
}

// A property of one 32-bit value, which Xlib takes in a long whatever its size.
void SetProperty(Widget shell, char const* name, Atom type, unsigned long value) {
    XChangeProperty(display, XtWindow(shell), AtomOf(name), type, 32, PropModeReplace,
                    reinterpret_cast<unsigned char*>(&value), 1);
}

}  // namespace

bool DialogWindow::MayOpen() const {
    return display && !shell_;
}

void DialogWindow::ReportUnbuildable() const {
    ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::DialogNotShown, name_);
    SendErrorToClient(error);
    ExitCleanup(0, "TranscodeError");
}

// Nothing is typed into a dialog, so none opens an input method: that would read its long table of key sequences, or wait
// for a server of its own.
void DialogWindow::Open(char const* title) {
    shell_ = CreateShell(name_, "XQENClientUI",
                         {{XtNtitle, title},
                          {XtNiconName, title},
                          {XtNmappedWhenManaged, false},
                          {XtNallowShellResize, true},
                          {XtNinput, true},
                          {XtNwindowRole, name_},
                          {XtNclientLeader, qenHidden},
                          {"openIm", false}});
    OverrideTranslations(shell_, "<Message>WM_PROTOCOLS: SystemMenuClose()\n");
    open_windows.push_back(this);
    form_ = Create(shell_, "form", formWidgetClass);
}

void DialogWindow::SetFormDistance(int pixels) {
    SetResources(form_, {{XtNdefaultDistance, pixels}});
}

Widget DialogWindow::AddLabel(char const* name, char const* text, LabelTraits const& traits) {
    Widget label = Create(form_, name, labelWidgetClass,
                          {{XtNlabel, text}, {XtNfromVert, traits.below}, {XtNinternational, true}});
    if (!traits.framed) SetResources(label, {{XtNborderWidth, 0}});
    if (traits.left) SetResources(label, {{XtNjustify, XtJustifyLeft}});
    if (traits.distance > 0) SetResources(label, {{XtNvertDistance, traits.distance}});
    if (traits.width > 0) SetResources(label, {{XtNwidth, traits.width}, {XtNresize, false}});
    AnchorInForm(label, Anchor::TopLeft);
    return label;
}

Widget DialogWindow::AddText(char const* name, char const* text, TextTraits const& traits) {
    Widget added = CreateReadOnlyText(
        form_, name, text, {{XtNfromVert, traits.below}, {XtNwidth, traits.width}, {XtNheight, traits.height}});
    SetSensitive(added, traits.sensitive);
    AnchorInForm(added, traits.anchor);
    texts_.push_back(added);
    return added;
}

Widget DialogWindow::AddButton(char const* name, char const* label, std::function<void()> pressed,
                               ButtonTraits const& traits) {
    Widget button =
        Create(form_, name, commandWidgetClass,
               {{XtNfromVert, traits.below}, {XtNlabel, label}, {XtNinternational, true}, {XtNresizable, true}});
    AnchorInForm(button, traits.anchor);
    OnPressed(button, std::move(pressed));
    return button;
}

void DialogWindow::AlignRight(Widget button, Widget above, int left_by) {
    SetResources(button, {{XtNhorizDistance, BorderWidthOf(above) + WidthOf(above) - WidthOf(button) - left_by}});
}

void DialogWindow::Center(Widget button, Widget above) {
    SetResources(button, {{XtNhorizDistance, BorderWidthOf(above) + (WidthOf(above) - WidthOf(button)) / 2}});
}

void DialogWindow::Realize() {
    XtRealizeWidget(shell_);
    for (Widget text : texts_) MakeScrollable(text);
}

void DialogWindow::Present(WindowTraits const& traits) {
    if (!XtIsRealized(shell_)) Realize();
    CenterDialogOnDisplay(shell_);
    Atom close = AtomOf("WM_DELETE_WINDOW");
    XSetWMProtocols(display, XtWindow(shell_), &close, 1);
    SetProperties(traits);
    XtMapWidget(shell_);
}

void DialogWindow::SetProperties(WindowTraits const& traits) {
    char* title = nullptr;
    XtVaGetValues(shell_, XtNtitle, &title, nullptr);
    SetTitleProperty(title);
    SetProperty(shell_, "_NET_WM_PID", XA_CARDINAL, static_cast<unsigned long>(getpid()));
    SetProperty(shell_, "_NET_WM_WINDOW_TYPE", XA_ATOM,
                AtomOf(traits.dialog ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL"));
    if (!traits.asked_for) SetProperty(shell_, "_NET_WM_USER_TIME", XA_CARDINAL, 0);
    if (traits.over) XSetTransientForHint(display, XtWindow(shell_), XtWindow(traits.over));
}

// The title in UTF-8, which the toolkit's own property does not have; what Xlib cannot write in it goes without.
void DialogWindow::SetTitleProperty(char const* title) {
    auto* text = const_cast<char*>(title);
    XTextProperty property;
    if (XmbTextListToTextProperty(display, &text, 1, XUTF8StringStyle, &property) < Success) return;
    XSetTextProperty(display, XtWindow(shell_), &property, AtomOf("_NET_WM_NAME"));
    XFree(property.value);
}

void DialogWindow::SetTitle(char const* title) {
    SetResources(shell_, {{XtNtitle, title}, {XtNiconName, title}});
    SetTitleProperty(title);
}

void DialogWindow::Close() {
    if (!shell_) return;
    std::erase(open_windows, this);
    texts_.clear();
    form_ = nullptr;
    XtDestroyWidget(std::exchange(shell_, nullptr));
}

void LeadDialogWindows() {
    for (auto const* window : open_windows) SetResources(window->Shell(), {{XtNclientLeader, qenHidden}});
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
