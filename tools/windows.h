#pragma once

#include <X11/Xlib.h>

#include <string>
#include <vector>

#include "tools/pixels.h"

namespace tools {

// Asks the server about windows of other programs. Each of them may vanish at any moment; then it has no name, is not
// shown and lies nowhere, see IgnoreErrors.

// From then on X errors do not end the process, nor does the loss of this connection.
void IgnoreErrors(Display* display);

// The first window, at the top level or inside the frames that a window manager puts around such a one, that `name`
// stands for: its title or the instance name of its WM_CLASS. 0 when there is none.
Window FindTopLevel(Display* display, std::string const& name);

// In UTF-8.
std::string TitleOf(Display* display, Window window);

// The instance name of its WM_CLASS.
std::string NameOf(Display* display, Window window);

// "unknown" for a number that is no atom's.
std::string AtomName(Display* display, Atom atom);

// A property's text, or its first value: the name of an atom or of another window, otherwise a number. Empty when the window
// has no such property.
std::string PropertyOf(Display* display, Window window, std::string const& property);

// Whether it and all its ancestors are mapped.
bool IsOnScreen(Display* display, Window window);

// 0 for the root.
Window ParentOf(Display* display, Window window);

std::vector<Window> ChildrenOf(Display* display, Window window);

// Without its border.
Area AreaOf(Display* display, Window window);

// What its ancestors leave of it.
Area VisibleArea(Display* display, Window window);

// The innermost one.
Window WindowUnderPointer(Display* display);

// Sends `message` to whoever manages windows when `destination` is the root, otherwise to the program that made it.
void SendClientMessage(Display* display, Window destination, XClientMessageEvent message);

}  // namespace tools
