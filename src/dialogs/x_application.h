#pragma once

struct _XtAppStruct;

// The X application: the display connection, the failure handlers and the main loop. Main thread only.

// Opens the display, which the arguments or the environment name, and runs the main loop with `tick` every 1000
// milliseconds; the arguments are the process's own and the toolkit takes what it knows out of them. Returns 0 when the
// main loop returns or an exception escapes. A display that cannot be opened ends the process with status 255, and so
// does every X protocol error and toolkit error; a lost display ends it with 0.
//
// When `international` is set the toolkit sets the locale from the environment. Where that ends in the C locale after
// all, `international` is cleared and every loaded translation dropped: the locale could not show it.
int InitXApp(int argc, char** argv, void (*tick)());

// Passes ordinary toolkit warnings on to the handler that was installed before. The warning that no font set can be made
// is fatal: it is reported to the client with error code 1, and the process ends with status 0.
void OverrideWarningMsgHandler(_XtAppStruct* context);
