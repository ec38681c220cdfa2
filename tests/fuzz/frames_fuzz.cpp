// Bytes read as frames: every whole frame arrives as it is, and anything else is the end.
#include <sys/mman.h>
#include <unistd.h>

#include "channel/unix_pipe.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    static int const file = memfd_create("frames", 0);
    static auto& queue = *new UIMessageQueue;
    static auto& pipe = *new UnixPipe(queue, queue);
    // Killed before its start: its threads end at once, and all reading is left to the target.
    static bool const started = (pipe.AddReference(), pipe.Kill(), pipe.Start(file, 0));
    Require(started && ftruncate(file, 0) == 0 && lseek(file, 0, SEEK_SET) == 0);
    Require(pwrite(file, input.data(), input.size(), 0) == static_cast<ssize_t>(input.size()));
    for (UIMessage message; Succeeds([&] { pipe.ReadMessageFromPipe(message); });) {
        Require(input.size() >= 4);
        std::size_t const length = __builtin_bswap32(TakeInteger<std::uint32_t>(input));
        Require(message.Text() == Text(input.substr(0, length)) && message.Text().size() == length);
        input.remove_prefix(length);
    }
    Require(input.size() < 4 || __builtin_bswap32(TakeInteger<std::uint32_t>(input)) > input.size());
}
