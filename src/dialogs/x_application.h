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

// Makes sure that the toolkit's default font set can be created on the display (X Logical Font Description, XLFD).
//
// A set that the resource database names and that can be created stays; so does an unset one while 12-point fonts of any
// kind exist. Otherwise the lowest of the sets that can be made from the server's 12-point fonts is stored in the
// display's resource database. Character sets missing from a font set are tolerated. Main thread, display open.
void ConfigValidDefaultFontSet();

// Creates the hidden shell "QENClientUIHiddenWindow", realised and never mapped. A client message to its window whose
// data begins with the four bytes "open", whatever the message's type and format, asks for the action request dialog:
// so other programs on the display bring it back. It leads the windows of all dialogs (ICCCM 4.1.11). Main thread only,
// once; without a display nothing is created.
void CreateHiddenWindow();
