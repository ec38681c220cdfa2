#include "core/process/exit_cleanup.h"

#include <X11/Xlib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>

#include "core/process/process_state.h"

namespace {

// The connection is cut at its socket: destroying the application context would close it properly, but is deferred
// inside callbacks, comes back from inside the I/O error handler and never returns inside the protocol error handler.
// Nothing here or behind it calls the X library, which could fail and begin the exit anew.
void CutDisplayConnection() {
    if (display) shutdown(XConnectionNumber(display), SHUT_RDWR);
}

// Whole seconds to their end, even if a signal interrupts.
void SleepSeconds(unsigned seconds) {
    while (seconds > 0) seconds = sleep(seconds);
}

}  // namespace

void ExitCleanup(int status, char const*) {
    CutDisplayConnection();
    SleepSeconds(2);
    std::exit(status);
}
