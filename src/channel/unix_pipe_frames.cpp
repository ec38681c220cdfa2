#include <unistd.h>

#include <limits>
#include <memory>

#include "channel/resumed.h"
#include "channel/unix_pipe.h"

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
