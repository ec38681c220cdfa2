#include "dialogs/toolkit/window_properties.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <unistd.h>

#include <string_view>

#include "core/process/process_state.h"
#include "foundation/text/local_encoding.h"

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
