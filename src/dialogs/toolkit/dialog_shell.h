#pragma once

#include "dialogs/toolkit/widget.h"
#include "dialogs/toolkit/window_properties.h"

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
