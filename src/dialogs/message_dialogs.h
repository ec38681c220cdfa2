#pragma once

#include "messages/client_requests.h"

// The messages that the client asks to be shown, each in a dialog of its own with one button; any number at once. A
// message is known by its ID. Closing one tells nobody. Main thread only.
//
// Messages asked for before the display is open wait and open with the first tick; their time runs from their arrival.

// Opens a dialog for the message, or changes the one that shows its ID, in place. The time-out starts anew; a request
// without one makes the message permanent.
void ShowMessageDialog(MessageRequest const& request);

// Closes the message of this ID, if there is one.
void RemoveMessageDialog(unsigned long long id);

// Closes the messages whose time is over, one of no length with the tick that shows it.
void RemoveTimedoutMessageDialogs();

// Opens the messages that waited for the display.
void OpenWaitingMessageDialogs();
