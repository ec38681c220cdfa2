#include "core/process/exit_cleanup.h"

#include <X11/Xlib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "core/process/process_state.h"

namespace {

// The connection is cut at its socket: destroying the application context would close it properly, but is deferred
// inside callbacks, comes back from inside the I/O error handler and never returns inside the protocol error handler.
void CloseDisplay() {
    app_context = nullptr;
    if (Display* closing = std::exchange(display, nullptr)) shutdown(XConnectionNumber(closing), SHUT_RDWR);
}

// Whole seconds to their end, even if a signal interrupts.
void SleepSeconds(unsigned seconds) {
    while (seconds > 0) seconds = sleep(seconds);
}

}  // namespace

void ExitCleanup(int status, char const*) {
    static int first_status = status;
    static bool under_way = false;
    bool again = std::exchange(under_way, true);
    if (!again) CloseDisplay();
    SleepSeconds(2);
    if (again) _exit(first_status);
    std::exit(status);
}
