#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>

#include "channel/access_lock.h"
#include "channel/ui_message_queue.h"
#include "foundation/base/debuggable_exception.h"

class PortableThread;

// A frame could not be read or written whole, or was refused. The pipe is of no use afterwards.
class UnixPipeReadMessageError : public DebuggableException {
  public:
    UnixPipeReadMessageError() : DebuggableException("UnixPipeReadMessageError") {}
};
class UnixPipeWriteMessageError : public DebuggableException {
  public:
    UnixPipeWriteMessageError() : DebuggableException("UnixPipeWriteMessageError") {}
};

// Closes the descriptor that a field holds when this object goes, and clears the field.
//
// The value 0 means "none": so the process's standard input is deliberately never closed.
class PipeCloser {
  public:
    // The field must outlive this object.
    explicit PipeCloser(int& descriptor) : descriptor_(descriptor) {}
    ~PipeCloser() {
        if (descriptor_ != 0) close(descriptor_);
        descriptor_ = 0;
    }
    PipeCloser(PipeCloser const&) = delete;
    PipeCloser& operator=(PipeCloser const&) = delete;

  private:
    int& descriptor_;
};

// The connection to the client: two descriptors, a thread that reads one into a queue and a thread that writes the
// other from a queue. It notices when the client has gone.
//
// A frame, either way, is the length of the text in bytes (unsigned 32-bit, little-endian) and then the text in UTF-8.
//
// Every failure ends in Kill, nothing is tried a second time. Whoever uses the pipe learns of it from Killed alone. The
// process must ignore SIGPIPE.
//
// Any thread may call Kill, Killed and what counts references. The state lock is never held across a read or write, and
// never together with the count lock, so Kill does not wait for a client that has stopped reading.
//
// The pipe lives on the heap and is shared by counted references (UnixPipeRef), of which each thread holds one; the
// last holder deletes it. The queues must outlive it, and may have to outlive the process's static objects, since a
// reader that blocks goes on until its client closes.
class UnixPipe {
  public:
    // The longest text that is accepted from the client, in bytes. What is sent may be as long as a header can say.
    static constexpr std::uint32_t kLongestPayload = 0x200000;

    // How long the writer sleeps between two looks at its queue, in milliseconds: the most that a message waits for it.
    static constexpr unsigned kWriterPeriod = 100;

    // No descriptors and no threads yet. `inbound` receives what the client sends, `outbound` is what goes to it.
    UnixPipe(UIMessageQueue& inbound, UIMessageQueue& outbound) : inbound_(inbound), outbound_(outbound) {}
    UnixPipe(UnixPipe const&) = delete;
    UnixPipe& operator=(UnixPipe const&) = delete;

    // Starts both threads on the two descriptors, which the pipe owns from now on (0 means that there is none to close).
    // Called once, by a holder of a reference. Answers whether both threads were started; if not, the pipe is killed.
    bool Start(int input_descriptor, int output_descriptor);

    // Ends the connection, the first time that it is called: the client sees the end of what the writer sends, what is
    // still queued is lost, and both threads end by themselves. A reader that blocks is not disturbed, it ends when the
    // client closes its end. Any thread; does not block.
    void Kill();

    // Whether the connection has ended; it stays so.
    bool Killed() const;

    // The count of references, for UnixPipeRef. The first two return the new count, which stays 0 when it was 0; the
    // holder that RemoveReference gives 0 deletes the pipe.
    unsigned AddReference();
    unsigned RemoveReference();
    unsigned GetRefCount();

    void Sleep(unsigned milliseconds) const;

    // Takes one frame from the input descriptor, blocking until it is whole. Throws UnixPipeReadMessageError when the
    // stream ends first, cannot be read, or announces more than kLongestPayload (whose bytes are then left unread).
    void ReadMessageFromPipe(UIMessage& message);

    // Writes one frame to the output descriptor, blocking until it is taken; a message without text writes nothing. The
    // header and the text are one write call each, and a call that is not taken whole throws UnixPipeWriteMessageError.
    void WriteMessageToPipe(UIMessage const& message);

    // The bodies of the two threads: run until the connection ends, and end it. Neither throws.
    void ServiceReadLoop();
    // An outbound message without text asks to close: it ends the connection, and what was queued after it is lost.
    void ServiceWriteLoop();

  private:
    bool StartThread(PortableThread*& thread, void (*entry)(void*));
    bool MayServe(PortableThread* const& thread) const;
    int InputDescriptor() const;
    int OutputDescriptor() const;
    void WriteWhole(void const* data, std::size_t size) const;
    void RetireOutputDescriptor();

    bool killed_ = false;
    // Never deleted here: once abandoned, each thread frees its own object.
    PortableThread* reader_ = nullptr;
    PortableThread* writer_ = nullptr;
    int input_ = 0;
    int output_ = 0;
    int retired_output_ = 0;  // the number of a silenced output descriptor, which is given back only at the end
    PipeCloser input_closer_{input_};
    PipeCloser output_closer_{output_};
    PipeCloser retired_output_closer_{retired_output_};
    UIMessageQueue& inbound_;
    UIMessageQueue& outbound_;
    mutable AccessLock state_lock_;  // guards killed_, the threads and the descriptors
    unsigned reference_count_ = 0;
    AccessLock count_lock_;  // guards the count alone
};

// A counted reference to a pipe. The last one to go deletes the pipe.
class UnixPipeRef {
  public:
    explicit UnixPipeRef(UnixPipe* pipe) : pipe_(pipe) { pipe_->AddReference(); }
    ~UnixPipeRef() {
        if (pipe_->RemoveReference() == 0) delete pipe_;
    }
    UnixPipeRef(UnixPipeRef const&) = delete;
    UnixPipeRef& operator=(UnixPipeRef const&) = delete;

    UnixPipe* operator->() const { return pipe_; }
    UnixPipe& operator*() const { return *pipe_; }

  private:
    UnixPipe* pipe_;
};
