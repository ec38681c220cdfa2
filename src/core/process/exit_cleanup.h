#pragma once

// Ends the process with `status`; the one way in which it ends on purpose. Main thread only, from any depth of X and Xt
// calls.
//
// The display connection goes first, so that every window vanishes at once; then two seconds pass, in which the pipe's
// writer thread can send what is still queued. `reason` is a word for the reader of the code and is printed nowhere.
[[noreturn]] void ExitCleanup(int status, char const* reason);
