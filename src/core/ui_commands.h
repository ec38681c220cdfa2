#pragma once

// Carries out the decisions that dialogs have queued, in order: asks for the confirmations that actions need, takes
// answered actions off the pending list and queues the replies to the client. Main thread only; never throws: an
// exception ends the one command that it comes from.
//
// A take-all asks for one confirmation after the other, each with the next tick after its answer, and replies only when
// the last is accepted. Its place in the list moves with the list, and an accepted confirmation counts only for the
// action that it names, as the user has read it: whatever is added or removed meanwhile, nothing that needs a confirmation
// is taken without its own.
void ProcessMessagesFromUI();
