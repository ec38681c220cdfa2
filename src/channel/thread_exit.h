#pragma once

// Routines that every PortableThread runs at its end, process-wide.
//
// There is no lock: register during start-up, before the first thread runs. The registry is built on first use and
// never torn down, since threads may end while the process exits.

// Registers a routine; it runs once at the end of each thread, after those registered before it.
void AtThreadExit(void (*routine)());

// Runs the registered routines on the calling thread, in the order of their registration.
void DoThreadExitRoutines();
