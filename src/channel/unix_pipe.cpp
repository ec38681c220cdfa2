#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <limits>
#include <memory>
#include <utility>

#include "channel/portable_thread.h"
#include "foundation/base/resumed.h"

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

// The format of frames, in both directions.

namespace {

constexpr std::size_t header_size = 4;

void ReadWhole(int descriptor, unsigned char* buffer, std::size_t size) {
    while (size > 0) {
        ssize_t const count = Resumed([&] { return read(descriptor, buffer, size); });
        if (count <= 0) throw UnixPipeReadMessageError();
        buffer += count;
        size -= static_cast<std::size_t>(count);
    }
}

std::uint32_t FromLittleEndian(unsigned char const (&bytes)[header_size]) {
    return std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]} << 16 |
           std::uint32_t{bytes[3]} << 24;
}

}  // namespace

void UnixPipe::ReadMessageFromPipe(UIMessage& message) {
    int const descriptor = InputDescriptor();
    unsigned char header[header_size];
    ReadWhole(descriptor, header, header_size);
    std::uint32_t const size = FromLittleEndian(header);
    if (size > longest_payload) throw UnixPipeReadMessageError();
    auto payload = std::make_unique_for_overwrite<unsigned char[]>(size);
    ReadWhole(descriptor, payload.get(), size);
    message = UIMessage(UStringRef<UTF8>(payload.get(), payload.get() + size));
}

void UnixPipe::WriteMessageToPipe(UIMessage const& message) {
    UStringRef<UTF8> const text = message.Text();
    if (text.empty()) return;
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) throw UnixPipeWriteMessageError();
    auto const size = static_cast<std::uint32_t>(text.size());
    unsigned char const header[header_size] = {static_cast<unsigned char>(size), static_cast<unsigned char>(size >> 8),
                                               static_cast<unsigned char>(size >> 16),
                                               static_cast<unsigned char>(size >> 24)};
    WriteWhole(header, header_size);
    WriteWhole(text.begin(), text.size());
}

// Asks for the descriptor before every call: after Kill its number may belong to something else.
void UnixPipe::WriteWhole(void const* data, std::size_t size) const {
    int const descriptor = OutputDescriptor();
    if (descriptor == 0) throw UnixPipeWriteMessageError();
    ssize_t const count = Resumed([&] { return write(descriptor, data, size); });
    if (count < 0 || static_cast<std::size_t>(count) != size) throw UnixPipeWriteMessageError();
}
