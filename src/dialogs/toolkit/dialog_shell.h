#pragma once

#include "dialogs/toolkit/widgets.h"

// What a window manager should know of a dialog's window (Extended Window Manager Hints, EWMH; ICCCM).
struct WindowTraits {
    // A dialog rather than a normal window.
    bool dialog = true;
    // The user has asked for it. Any other window comes up without taking the keyboard from what the user is doing.
    bool asked_for = false;
    // The shell that it belongs to and stays above, or null.
    Widget over = nullptr;
};

// Sets _NET_WM_NAME, _NET_WM_PID, _NET_WM_WINDOW_TYPE, _NET_WM_USER_TIME and WM_TRANSIENT_FOR on a realised shell that is
// not yet mapped. What the toolkit sets by itself it leaves alone. Main thread only.
void SetWindowProperties(Widget shell, WindowTraits const& traits);

// Sets _NET_WM_NAME, the title in UTF-8. `title` is in the locale's encoding.
void SetUtf8Title(Widget shell, char const* title);

union _XEvent;

// What the windows of all dialogs do alike. Main thread only.

// An unrealised, unmapped application shell of the application's class. `name` and `title` (in the locale's encoding)
// are copied.
Widget CreateDialogShell(char const* name, char const* title);

// Makes the hidden shell the leader (ICCCM 4.1.11) of the shells that were there before it; later ones have it at once.
void LeadDialogShells();

void SetDialogTitle(Widget shell, char const* title);

// Makes the shell's windows, not yet visible, so that everything in it has its size.
void RealizeDialogShell(Widget shell);

// Puts a realised shell in the middle of the display, subscribes it to the window manager's close request
// (ICCCM 4.2.8.1), tells the window manager what it is, and shows it.
void PresentDialogShell(Widget shell, WindowTraits const& traits);

// Destroys a shell with all that is in it and clears the pointer. A null one is left alone.
void DestroyDialogShell(Widget& shell);

// Puts a shell, its border left out of account, in the middle of the default screen; a larger one gets a negative
// position.
void CenterDialogOnDisplay(Widget shell);

// The action behind the window manager's close request: closing any dialog ends the process with status 0, and nothing
// is sent. Every other event is ignored.
void SystemMenuClose(Widget widget, _XEvent const& event);

// Registers "SystemMenuClose", and "Nothing" for translations that swallow an event, users' own among them: once an
// application, before its first dialog.
void RegisterDialogActions();

// The rule that all dialogs share: one that cannot be built is reported to the client by its name, with error code 2, and
// the process ends with status 0. In practice it is a text that the locale's encoding cannot represent.
[[noreturn]] void ReportUnbuildableDialog(char const* name);

// Runs `build`; whatever it throws ends the process by that rule. Main thread only.
template <class F>
void BuildOrReport(char const* name, F&& build) {
    try {
        build();
    } catch (...) {
        ReportUnbuildableDialog(name);
    }
}
