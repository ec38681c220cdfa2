#pragma once

#include "dialogs/toolkit/widget.h"

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
