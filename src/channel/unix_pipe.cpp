#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <utility>

#include "channel/millisecond_sleep.h"
#include "channel/portable_thread.h"
#include "channel/resumed.h"
#include "channel/thread_killer.h"

namespace {

template <void (UnixPipe::*serve)()>
void ServePipe(void* argument) {
    std::unique_ptr<UnixPipeRef> reference(static_cast<UnixPipeRef*>(argument));
    ((**reference).*serve)();
}

}  // namespace

bool UnixPipe::Start(int input_descriptor, int output_descriptor) {
    {
        AccessLocker locker(state_lock_);
        input_ = input_descriptor;
        output_ = output_descriptor;
        if (killed_) RetireOutputDescriptor();
    }
    bool const started = StartThread(reader_, ServePipe<&UnixPipe::ServiceReadLoop>) &&
                         StartThread(writer_, ServePipe<&UnixPipe::ServiceWriteLoop>);
    // With one thread missing no other would notice that the client has gone, or that nothing reaches it.
    if (!started) Kill();
    return started;
}

bool UnixPipe::StartThread(PortableThread*& thread, void (*entry)(void*)) {
    // Counted before the state lock is taken: no two locks at once.
    auto reference = std::make_unique<UnixPipeRef>(this);
    // The new thread's first look at the pipe waits for this lock, so it finds its pointer set, and nobody can abandon
    // and free the object while it is being started.
    AccessLocker locker(state_lock_);
    std::unique_ptr<PortableThread> created(PortableThread::CreatePortableThreadSuspended(entry, reference.get()));
    if (!created->Start()) return false;
    reference.release();
    thread = created.release();
    // The reader may have killed the pipe before there was a writer to abandon, which would then poll for ever.
    if (killed_) std::exchange(thread, nullptr)->Abandon();
    return true;
}

void UnixPipe::Kill() {
    AccessLocker locker(state_lock_);
    if (killed_) return;
    RetireOutputDescriptor();
    if (writer_) std::exchange(writer_, nullptr)->Abandon();
    if (reader_) std::exchange(reader_, nullptr)->Abandon();
    killed_ = true;
}

// Closing the number would not wake a writer that blocks in it, and would hand the number to whatever is opened next,
// where that writer's second call would go. The null device in its place takes the call, and the client sees the end.
void UnixPipe::RetireOutputDescriptor() {
    int const output = std::exchange(output_, 0);
    if (output == 0) return;
    int const null = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (null < 0 || Resumed([&] { return dup2(null, output); }) < 0) {
        close(output);
    } else if (output > STDERR_FILENO) {
        retired_output_ = output;
    }
    if (null >= 0) close(null);
}

bool UnixPipe::Killed() const {
    AccessLocker locker(state_lock_);
    return killed_;
}

unsigned UnixPipe::AddReference() {
    AccessLocker locker(count_lock_);
    return ++reference_count_;
}

unsigned UnixPipe::RemoveReference() {
    AccessLocker locker(count_lock_);
    if (reference_count_ > 0) --reference_count_;
    return reference_count_;
}

unsigned UnixPipe::GetRefCount() {
    AccessLocker locker(count_lock_);
    return reference_count_;
}

void UnixPipe::Sleep(unsigned milliseconds) const {
    MilliSecondSleep(milliseconds);
}

int UnixPipe::InputDescriptor() const {
    AccessLocker locker(state_lock_);
    return input_;
}

int UnixPipe::OutputDescriptor() const {
    AccessLocker locker(state_lock_);
    return output_;
}

bool UnixPipe::MayServe(PortableThread* const& thread) const {
    AccessLocker locker(state_lock_);
    return !killed_ && thread && !ThreadKiller::m_kill;
}

void UnixPipe::ServiceReadLoop() {
    try {
        while (MayServe(reader_)) {
            UIMessage message;
            ReadMessageFromPipe(message);
            inbound_.WriteMessage(message);
        }
    } catch (...) {
    }
    Kill();
}

void UnixPipe::ServiceWriteLoop() {
    try {
        while (MayServe(writer_)) {
            FiFoQueue<UIMessage> batch;
            outbound_.ReadMessages(batch);
            while (!batch.IsEmpty()) {
                UIMessage const message = batch.TakeFront();
                if (message.Text().empty()) return Kill();
                WriteMessageToPipe(message);
            }
            Sleep(writer_period);
        }
    } catch (...) {
    }
    Kill();
}
