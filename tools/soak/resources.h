#pragma once

#include <X11/Xlib.h>
#include <sys/types.h>

#include <map>
#include <string>

namespace tools {

// What a program holds at one moment, by name: its memory in KiB ("RSS KiB"), that of its pixmaps in the X server
// ("pixmap KiB"), and counts: "descriptors", "threads", and one for each type of resource in the X server, as "WINDOW".
using Resources = std::map<std::string, long>;

// `window` is any window of the program's. What cannot be asked for is left out.
Resources ResourcesOf(pid_t pid, Display* display, Window window);

// The bits of an X resource's number that say which it is of its program's; the others say whose.
XID BitsWithinProgram(Display* display);

}  // namespace tools
