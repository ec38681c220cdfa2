#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "channel/portable_thread.h"
#include "channel/unix_pipe.h"
#include "core/client_messages.h"
#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "core/tick.h"
#include "dialogs/x_application.h"

namespace {

// Puts the null device where a standard descriptor is closed: the display connection would get its number, and messages
// to the client would go into it.
void OccupyStandardDescriptors() {
    int opened;
    do opened = open("/dev/null", O_RDWR);
    while (opened >= 0 && opened <= STDERR_FILENO);
    if (opened >= 0) close(opened);
}

}  // namespace

int main(int argc, char** argv) {
    // A client that goes away is an ordinary end, not a signal.
    std::signal(SIGPIPE, SIG_IGN);
    OccupyStandardDescriptors();

    client_pipe = new UnixPipe(readQ, writeQ);
    UnixPipeRef keep(client_pipe);
    client_pipe->Start(STDIN_FILENO, STDOUT_FILENO);
    WriteXMLToClient(ReadyForData{});
    while (!initialized) {
        if (ClientIsGone()) ExitCleanup(0, "CLOSED");
        MilliSecondSleep(1000);
        ProcessMessagesFromClient();
    }
    return InitXApp(argc, argv, ServiceTimerTick);
}
