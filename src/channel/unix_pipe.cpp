#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <limits>
#include <memory>
#include <utility>

#include "channel/portable_thread.h"
#include "foundation/base/resumed.h"

namespace {

// The body of a thread, which gives its reference back at the end.
template <void (UnixPipe::*serve)()>
void ServePipe(void* argument) {
    std::unique_ptr<UnixPipeRef> reference(static_cast<UnixPipeRef*>(argument));
    ((**reference).*serve)();
}

using Header = std::array<unsigned char, 4>;

Header ToHeader(std::uint32_t size) {
    Header header;
    for (unsigned i = 0; i < header.size(); ++i) header[i] = static_cast<unsigned char>(size >> 8 * i);
    return header;
}

std::uint32_t FromHeader(Header const& header) {
    std::uint32_t size = 0;
    for (unsigned i = 0; i < header.size(); ++i) size |= std::uint32_t{header[i]} << 8 * i;
    return size;
}

void ReadWhole(int descriptor, unsigned char* buffer, std::size_t size) {
    while (size > 0) {
        ssize_t const count = Resumed([&] { return read(descriptor, buffer, size); });
        if (count <= 0) throw UnixPipeReadMessageError();
        buffer += count;
        size -= static_cast<std::size_t>(count);
    }
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
            inbound_.WriteMessage(std::move(message));
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
            Sleep(kWriterPeriod);
        }
    } catch (...) {
    }
    Kill();
}

void UnixPipe::ReadMessageFromPipe(UIMessage& message) {
    int const descriptor = InputDescriptor();
    Header header;
    ReadWhole(descriptor, header.data(), header.size());
    std::uint32_t const size = FromHeader(header);
    if (size > kLongestPayload) throw UnixPipeReadMessageError();
    AutoUString<UTF8> text(size);
    ReadWhole(descriptor, text.data(), size);
    message = UIMessage(std::move(text));
}

void UnixPipe::WriteMessageToPipe(UIMessage const& message) {
    UStringRef<UTF8> const text = message.Text();
    if (text.empty()) return;
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) throw UnixPipeWriteMessageError();
    Header const header = ToHeader(static_cast<std::uint32_t>(text.size()));
    WriteWhole(header.data(), header.size());
    WriteWhole(text.begin(), text.size());
}

// Asks for the descriptor before every call: after Kill its number may belong to something else.
void UnixPipe::WriteWhole(void const* data, std::size_t size) const {
    int const descriptor = OutputDescriptor();
    if (descriptor == 0) throw UnixPipeWriteMessageError();
    ssize_t const count = Resumed([&] { return write(descriptor, data, size); });
    if (count < 0 || static_cast<std::size_t>(count) != size) throw UnixPipeWriteMessageError();
}
