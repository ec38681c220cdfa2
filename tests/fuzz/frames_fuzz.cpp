// Bytes read as frames: every whole frame arrives as it is, and anything else is the end.
#include <sys/mman.h>
#include <unistd.h>

#include "channel/unix_pipe.h"
#include "tests/fuzz/fuzz.h"

// Killed before its start: its threads end at once, and all reading is left to the caller.
static UnixPipe& PipeOn(int descriptor) {
    static auto& queue = *new UIMessageQueue;
    static auto& pipe = *new UnixPipe(queue, queue);
    pipe.AddReference();
    pipe.Kill();
    Require(pipe.Start(descriptor, 0));
    return pipe;
}

void Fuzz(std::string_view input) {
    static int const file = memfd_create("frames", 0);
    static UnixPipe& pipe = PipeOn(file);
    auto const size = static_cast<ssize_t>(input.size());
    Require(ftruncate(file, 0) == 0 && pwrite(file, input.data(), input.size(), 0) == size && lseek(file, 0, 0) == 0);
    while (true) {
        UIMessage message;
        bool const arrived = Succeeds([&] { pipe.ReadMessageFromPipe(message); });
        bool const has_header = input.size() >= 4;
        std::size_t const length = __builtin_bswap32(TakeInteger<std::uint32_t>(input));
        Require(arrived == (has_header && length <= input.size()));
        if (!arrived) return;
        Require(message.Text() == Text(input.substr(0, length)));
        input.remove_prefix(length);
    }
}
