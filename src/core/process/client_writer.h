#pragma once

#include "channel/ui_message_queue.h"
#include "messages/replies.h"

// The way out to the client: whole documents, appended to a queue that only the pipe's writer thread empties.
class PipeWriter {
  public:
    // `queue` must outlive the writer.
    explicit PipeWriter(UIMessageQueue& queue) : queue_(queue) {}

    // Appends one message. Any thread.
    void Write(AutoUString<UTF8> document) { queue_.WriteMessage(UIMessage(std::move(document))); }

  private:
    UIMessageQueue& queue_;
};

// The writer to `writeQ`.
PipeWriter& ClientWriter();

// Queues the document of one decision.
template <class Record>
void SendToClient(PipeWriter& writer, Record const& record) {
    writer.Write(ConvertToXML(record));
}

// Queues the document of a report about the process itself.
template <class Record>
void WriteXMLToClient(Record const& record) {
    ClientWriter().Write(ConvertToXML(record));
}

// Reports a failure that is about to end the process, and waits until the report is on its way: in whole seconds, at most
// five minutes, and no longer than the client is there. Two equal frames go out; that is meant, clients know the report
// so. Main thread only.
void SendErrorToClient(ClientUIErrorMessage& error);
