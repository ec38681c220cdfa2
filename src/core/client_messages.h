#pragma once

// Takes the client's messages that wait and carries each out: requests join or leave the pending list, dialogs open and
// close, quiet mode begins and ends, and the first message initializes the process. Main thread only; never throws.
//
// One batch a call. A message that cannot be parsed or decoded ends its batch: what came before it is done, the rest is
// dropped, and nobody is told. Messages behind the one that initialized the process are kept for the next call, which
// comes once the display is open.
void ProcessMessagesFromClient();

// Removes the first pending action of this ID, if there is one.
void RemoveAction(unsigned long long id);
