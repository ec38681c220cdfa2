#pragma once

// Connects the dialogs, in process, to a virtual display that lasts as long as the process; once, however often it is
// called.
void OpenDialogDisplay();
