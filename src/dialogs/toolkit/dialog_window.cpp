#include "dialogs/toolkit/dialog_window.h"

#include <X11/IntrinsicP.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <utility>

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/read_only_text.h"
#include "foundation/base/never_destroyed.h"
#include "foundation/text/local_encoding.h"
#include "foundation/text/transcode.h"

namespace {

// The open dialog of each shell and of each text.
auto& open_windows = NeverDestroyed<std::map<Widget, DialogWindow*>>();

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

// The open dialog that the window belongs to, or null.
DialogWindow* DialogOf(Window window) {
    Widget widget = XtWindowToWidget(display, window);
    while (widget && XtParent(widget)) widget = XtParent(widget);
    auto const found = open_windows.find(widget);
    return found == open_windows.end() ? nullptr : found->second;
}

// Whether the key has been held down since its last press, in whichever window that was. The release may have gone to
// another program: after a while without a press there was one.
bool IsRepeated(XKeyEvent const& key) {
    constexpr Time kLongestPause = 1000;  // Milliseconds, above the delay before a key repeats.
    static std::map<unsigned, Time> pressed;
    if (key.type == KeyRelease) {
        pressed.erase(key.keycode);
        return false;
    }
    auto const [last, first] = pressed.try_emplace(key.keycode, key.time);
    bool const held = !first && key.time - last->second < kLongestPause;
    last->second = key.time;
    return held;
}

// The release of a key that has closed its window comes here, too, though the window has gone.
bool FilterKey(XEvent const& event) {
    bool const repeated = IsRepeated(event.xkey);
    DialogWindow* dialog = DialogOf(event.xany.window);
    return dialog && dialog->HandleKey(event, repeated);
}

// The wheel is four buttons, of which the toolkit's own widgets know some; the others are for it.
bool FilterButton(XEvent const& event) {
    DialogWindow* dialog = DialogOf(event.xany.window);
    if (!dialog) return false;
    dialog->HandleButton(event);
    return event.xbutton.button >= Button4 && event.xbutton.button <= Button5 + 2;
}

// Whoever is answered what a shell is made of, or pastes what was selected in a text, has a window of its own that the
// toolkit listens to in the widget's name, also when the dialog has gone meanwhile. Nothing but the widget's address is
// safe to look at then.
bool FilterProperty(XEvent const& event) {
    Widget const listener = XtWindowToWidget(display, event.xproperty.window);
    return listener && listener != qenHidden && !open_windows.contains(listener);
}

bool HasWindowManager() {
    XWindowAttributes root;
    return XGetWindowAttributes(display, DefaultRootWindow(display), &root) != 0 &&
           (root.all_event_masks & SubstructureRedirectMask) != 0;
}

bool KeyboardFollowsPointer() {
    Window focus = None;
    int revert = 0;
    XGetInputFocus(display, &focus, &revert);
    return focus == PointerRoot;
}

// Xlib writes what the locale has, and some locales have more than there is.
bool IsUTF8(XTextProperty const& property) try {
    UStringRef<UTF8> const text(property.value, property.value + property.nitems);
    return Transcode<UTF8>(Transcode<UTF32>(text).Ref()).Ref() == text;
} catch (InvalidTextEncoding const&) {
    return false;
}

// What a window manager would do. The window may vanish before the server hears of it, which is no error then.
void TakeKeyboard(Widget shell, Time time) {
    XSync(display, False);
    auto const handler = XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XSetInputFocus(display, XtWindow(shell), RevertToPointerRoot, time);
    XSync(display, False);
    XSetErrorHandler(handler);
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
    auto const line = OneLine(title);
    shell_ = CreateShell(name_, "XQENClientUI",
                         {{XtNtitle, line.c_str()},
                          {XtNiconName, line.c_str()},
                          {XtNmappedWhenManaged, false},
                          {XtNallowShellResize, true},
                          {XtNinput, true},
                          {XtNwindowRole, name_},
                          {XtNclientLeader, qenHidden},
                          {"openIm", false}});
    OverrideTranslations(shell_, "<Message>WM_PROTOCOLS: SystemMenuClose()\n");
    open_windows[shell_] = this;
    // The gap between neighbours, in which the focus is shown: whatever a user's resources say.
    form_ = Create(shell_, "form", formWidgetClass, {{XtNdefaultDistance, kGap}});
    focus_.Begin(form_);
    // Keys and buttons are asked for here, so that they come wherever the pointer is; they are filtered before.
    OnEvents(shell_,
             StructureNotifyMask | FocusChangeMask | EnterWindowMask | LeaveWindowMask | KeyPressMask | KeyReleaseMask |
                 ButtonPressMask,
             [this](XEvent const& event) { HandleEvent(event); });
    OnEvents(form_, ExposureMask, [this](XEvent const&) { focus_.Draw(); });
}

Widget DialogWindow::AddLabel(char const* name, char const* text, LabelTraits const& traits) {
    Widget label = CreateLabel(form_, name, labelWidgetClass, text, traits.below);
    if (!traits.framed) SetResources(label, {{XtNborderWidth, 0}});
    if (traits.left) SetResources(label, {{XtNjustify, XtJustifyLeft}});
    if (traits.distance > 0) SetResources(label, {{XtNvertDistance, traits.distance}});
    FitToDisplay(label, traits.most_lines);
    if (traits.width > 0) SetResources(label, {{XtNwidth, traits.width}, {XtNresize, false}});
    AnchorInForm(label, traits.anchor);
    return label;
}

Widget DialogWindow::AddText(char const* name, char const* text, TextTraits const& traits) {
    int const width = std::min(traits.width, WidestInDisplay());
    Widget added = CreateReadOnlyText(form_, name, text,
                                      {{XtNfromVert, traits.below}, {XtNwidth, width}, {XtNheight, traits.height}});
    SetSensitive(added, traits.sensitive);
    AnchorInForm(added, traits.anchor);
    texts_.push_back(added);
    open_windows[added] = this;
    AddControl({.widget = added, .outline = added, .scroll = [added](Move move, int lines) {
                    ScrollText(added, move, lines);
                }});
    return added;
}

Widget DialogWindow::AddButton(char const* name, char const* label, std::function<void()> pressed,
                               ButtonTraits const& traits) {
    Widget button = CreateLabel(form_, name, commandWidgetClass, label, traits.below);
    FixWidth(button, traits.other_labels);
    AnchorInForm(button, traits.anchor);
    OnPressed(button, pressed);
    AddControl({.widget = button, .outline = button, .press = std::move(pressed)});
    return button;
}

void DialogWindow::AlignRight(Widget button, Widget above, int left_by) {
    CutToWidth(button, WidthOf(above) + 2 * BorderWidthOf(above) - left_by);
    SetResources(button, {{XtNhorizDistance, BorderWidthOf(above) + WidthOf(above) - WidthOf(button) - left_by}});
}

void DialogWindow::Center(Widget button, Widget above) {
    SetResources(button, {{XtNhorizDistance, BorderWidthOf(above) + (WidthOf(above) - WidthOf(button)) / 2}});
}

void DialogWindow::Realize() {
    XtRealizeWidget(shell_);
    for (Widget text : texts_) MakeScrollable(text);
}

// The window that nobody asked for says at first that it takes no keyboard (WM_HINTS), and once it is mapped that it
// does. Of the ways that there are, tried under openbox, metacity, mutter and xfwm4, only this one leaves it on top of the
// window that has the keyboard, leaves the keyboard there, gives it the keyboard with a click, and lets other windows be
// raised over it: a _NET_WM_USER_TIME of 0 opens it below under metacity and mutter, and _NET_WM_STATE_ABOVE, which mends
// that, keeps it above whatever the user clicks.
void DialogWindow::Present(WindowTraits const& traits) {
    if (!XtIsRealized(shell_)) Realize();
    CenterDialogOnDisplay(shell_);
    SetSmallestSize();
    asked_for_ = traits.asked_for;
    over_ = traits.over;
    if (!asked_for_) SetResources(shell_, {{XtNinput, false}});
    Atom close = AtomOf("WM_DELETE_WINDOW");
    XSetWMProtocols(display, XtWindow(shell_), &close, 1);
    SetProperties(traits);
    XtMapWidget(shell_);
}

// From here on the size is the user's: no widget asks for another one.
void DialogWindow::SetSmallestSize() {
    auto const size = SmallestSizeOf(form_);
    SetResources(shell_, {{XtNallowShellResize, false}, {XtNminWidth, size.width}, {XtNminHeight, size.height}});
}

void DialogWindow::HandleEvent(XEvent const& event) {
    if (event.type == MapNotify) HandleMapped();
    // Where the keyboard follows the pointer, that is all that is said of it.
    bool const crossing = event.type == EnterNotify || event.type == LeaveNotify;
    if (crossing && event.xcrossing.detail != NotifyInferior && KeyboardFollowsPointer())
        HandleFocus(event.type == EnterNotify);
    bool const change = event.type == FocusIn || event.type == FocusOut;
    // A grab takes the keyboard for a moment only: a menu's, or that of a click that the window manager looks at.
    if (!change || event.xfocus.mode == NotifyGrab || event.xfocus.mode == NotifyUngrab) return;
    if (event.xfocus.detail != NotifyInferior) HandleFocus(event.type == FocusIn);
}

void DialogWindow::HandleMapped() {
    if (!asked_for_) SetResources(shell_, {{XtNinput, true}});
    if (asked_for_ && !HasWindowManager()) TakeKeyboard(shell_, CurrentTime);
}

void DialogWindow::HandleFocus(bool gained) {
    focus_.Reset();
    focus_.SetShown(gained);
    if (gained) SetResources(shell_, {{XtNurgency, false}});
}

void DialogWindow::SetUrgent() {
    if (shell_ && !focus_.IsShown()) SetResources(shell_, {{XtNurgency, true}});
}

bool DialogWindow::HandleKey(XEvent const& event, bool repeated) {
    auto key = event.xkey;
    // With other modifiers a key means something to whoever watches for them, and nothing here.
    if (event.type == KeyRelease || (key.state & (ControlMask | Mod1Mask | Mod4Mask)) != 0) return false;
    KeySym const meaning = XLookupKeysym(&key, (key.state & ShiftMask) != 0 ? 1 : 0);
    bool const backwards = meaning == XK_Tab && (key.state & ShiftMask) != 0;
    return focus_.HandleKey(backwards ? XK_ISO_Left_Tab : meaning, repeated);
}

void DialogWindow::HandleButton(XEvent const& event) {
    unsigned const button = event.xbutton.button;
    Widget const under = XtWindowToWidget(display, event.xbutton.window);
    if (button == Button4 || button == Button5) return focus_.HandleWheel(under, button == Button4);
    if (button == Button1) focus_.HandlePress(under);
    if (!HasWindowManager()) TakeKeyboard(shell_, event.xbutton.time);
}

void DialogWindow::SetProperties(WindowTraits const& traits) {
    char* title = nullptr;
    XtVaGetValues(shell_, XtNtitle, &title, nullptr);
    SetTitleProperty(title);
    SetProperty(shell_, "_NET_WM_PID", XA_CARDINAL, static_cast<unsigned long>(getpid()));
    SetProperty(shell_, "_NET_WM_WINDOW_TYPE", XA_ATOM,
                AtomOf(traits.dialog ? "_NET_WM_WINDOW_TYPE_DIALOG" : "_NET_WM_WINDOW_TYPE_NORMAL"));
    if (traits.over) XSetTransientForHint(display, XtWindow(shell_), XtWindow(traits.over));
}

// The title in UTF-8, which the toolkit's own property does not have; one that cannot be written in it goes without.
void DialogWindow::SetTitleProperty(char const* title) {
    auto* text = const_cast<char*>(title);
    XTextProperty property{};
    bool const written = XmbTextListToTextProperty(display, &text, 1, XUTF8StringStyle, &property) >= Success;
    if (written && IsUTF8(property))
        XSetTextProperty(display, XtWindow(shell_), &property, AtomOf("_NET_WM_NAME"));
    else
        XDeleteProperty(display, XtWindow(shell_), AtomOf("_NET_WM_NAME"));
    XFree(property.value);
}

void DialogWindow::SetTitle(char const* title) {
    auto const line = OneLine(title);
    SetResources(shell_, {{XtNtitle, line.c_str()}, {XtNiconName, line.c_str()}});
    SetTitleProperty(line.c_str());
}

void DialogWindow::Close() {
    if (!shell_) return;
    if (focus_.IsShown()) GiveKeyboardOn();
    focus_ = {};
    for (Widget text : texts_) open_windows.erase(text);
    open_windows.erase(shell_);
    texts_.clear();
    form_ = nullptr;
    XtDestroyWidget(std::exchange(shell_, nullptr));
}

// Without a window manager nobody else does. A keyboard that follows the pointer goes on doing so.
void DialogWindow::GiveKeyboardOn() const {
    auto const below = open_windows.find(over_);
    bool const open = below != open_windows.end() && below->second->shell_ == over_;
    if (open && !KeyboardFollowsPointer() && !HasWindowManager()) TakeKeyboard(over_, CurrentTime);
}

void LeadDialogWindows() {
    for (auto const& [widget, window] : open_windows)
        if (widget == window->Shell()) SetResources(widget, {{XtNclientLeader, qenHidden}});
}

// Waiting for the server to confirm the position, the toolkit would look through all events that have come, at each of
// many dialogs that open at once. Without waiting it forgets the position until then, so it is told once more.
void CenterDialogOnDisplay(Widget shell) {
    int const screen = DefaultScreen(display);
    int const x = (DisplayWidth(display, screen) - WidthOf(shell)) / 2;
    int const y = (DisplayHeight(display, screen) - HeightOf(shell)) / 2;
    SetResources(shell, {{XtNwaitForWm, false}, {XtNx, x}, {XtNy, y}});
    XtMoveWidget(shell, static_cast<Position>(x), static_cast<Position>(y));
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
    // Where the server has it, a key that is held down sends no releases in between.
    XkbSetDetectableAutoRepeat(display, True, nullptr);
    for (int type : {KeyPress, KeyRelease}) BeforeDispatch(type, FilterKey);
    BeforeDispatch(ButtonPress, FilterButton);
    BeforeDispatch(PropertyNotify, FilterProperty);
}
