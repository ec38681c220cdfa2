#pragma once

// Carries out the decisions that dialogs have queued, in order: asks for the confirmations that actions need, takes
// answered actions off the pending list and queues the replies to the client. Main thread only; never throws: an
// exception ends the one command that it comes from.
//
// While a question stands, nothing else is decided: a take, a take-all, a cancel or a snooze behind it is dropped. An
// accepted question counts for the first action of its ID if that still says the same, title and confirmation text; one
// that has come in its place and needs a confirmation is asked about anew.
//
// A take-all asks for one confirmation after the other, each when the answer to the one before is carried out, and
// replies only when the last is accepted. Its place in the list moves with the list: whatever joins or leaves meanwhile,
// each action that needs a confirmation is asked about.
void ProcessMessagesFromUI();
