#include "core/process/client_writer.h"

#include "channel/portable_thread.h"
#include "core/process/process_state.h"

PipeWriter& ClientWriter() {
    static PipeWriter writer(writeQ);
    return writer;
}

void SendErrorToClient(ClientUIErrorMessage& error) {
    WriteXMLToClient(error);
    WriteXMLToClient(error);
    for (int seconds = 0; seconds < 300 && !writeQ.IsEmpty() && !ClientIsGone(); ++seconds) MilliSecondSleep(1000);
}
