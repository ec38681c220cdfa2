#pragma once

// Creates the hidden shell "QENClientUIHiddenWindow", realised and never mapped. A client message to its window whose
// data begins with the four bytes "open", whatever the message's type and format, asks for the action request dialog:
// so other programs on the display bring it back. It leads the windows of all dialogs (ICCCM 4.1.11). Main thread only,
// once; without a display nothing is created.
void CreateHiddenWindow();
