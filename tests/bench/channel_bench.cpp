// Frames through real pipes: how fast the reader thread takes them in, how fast one is written, and whole batches
// through both threads of two connections back to back.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <thread>

#include "channel/unix_pipe.h"

namespace {

// How many bytes of text one batch has, whatever the size of its frames.
constexpr std::size_t batch_size = 1 << 20;

struct PipeEnds {
    PipeEnds() {
        int ends[2];
        if (pipe(ends) != 0) std::abort();
        out = ends[0];
        in = ends[1];
    }
    int out, in;
};

// A connection that runs; it ends with its client.
struct Connection {
    Connection(int input, int output) : pipe(new UnixPipe(inbound, outbound)), reference(pipe) {
        std::signal(SIGPIPE, SIG_IGN);
        if (!pipe->Start(input, output)) std::abort();
    }
    // The threads use the queues for as long as they hold references.
    void AwaitEnd() {
        while (pipe->GetRefCount() > 1) std::this_thread::yield();
    }
    // Waits until `count` messages have arrived.
    void Receive(std::size_t count) {
        while (count > 0) {
            FiFoQueue<UIMessage> batch;
            inbound.ReadMessages(batch);
            if (batch.IsEmpty()) std::this_thread::yield();
            for (; !batch.IsEmpty(); --count) benchmark::DoNotOptimize(batch.TakeFront());
        }
    }

    UIMessageQueue inbound, outbound;
    UnixPipe* pipe;
    UnixPipeRef reference;
};

std::size_t FrameSize(benchmark::State const& state) {
    return static_cast<std::size_t>(state.range(0));
}

UIMessage MessageOf(std::size_t size) {
    std::string const text(size, 'x');
    return UIMessage(UStringRef<UTF8>(std::string_view(text)));
}

void Report(benchmark::State& state, std::size_t frames) {
    auto const total = state.iterations() * static_cast<std::int64_t>(frames);
    state.SetItemsProcessed(total);
    state.SetBytesProcessed(total * state.range(0));
}

// From bytes in the pipe to messages in the queue.
void ReadFrames(benchmark::State& state) {
    std::size_t const size = FrameSize(state), count = batch_size / size;
    std::string frames;
    for (std::size_t i = 0; i < count; ++i) {
        for (int shift = 0; shift < 32; shift += 8) frames += static_cast<char>(size >> shift);
        frames.append(size, 'x');
    }
    PipeEnds to_pipe, from_pipe;
    Connection connection(to_pipe.out, from_pipe.in);
    for (auto _ : state) {
        if (write(to_pipe.in, frames.data(), frames.size()) != static_cast<ssize_t>(frames.size()))
            state.SkipWithError("the reader has gone");
        connection.Receive(count);
    }
    Report(state, count);
    close(to_pipe.in);
    connection.AwaitEnd();
    close(from_pipe.out);
}
BENCHMARK(ReadFrames)->Arg(64)->Arg(1024)->Arg(65536)->Arg(1 << 20)->UseRealTime();

// One frame at a time into the pipe, with a client that keeps up.
void WriteFrame(benchmark::State& state) {
    PipeEnds to_pipe, from_pipe;
    Connection connection(to_pipe.out, from_pipe.in);
    std::thread client([&] {
        std::string buffer(1 << 16, '\0');
        while (read(from_pipe.out, buffer.data(), buffer.size()) > 0) continue;
    });
    UIMessage const message = MessageOf(FrameSize(state));
    for (auto _ : state) connection.pipe->WriteMessageToPipe(message);
    Report(state, 1);
    close(to_pipe.in);
    client.join();
    connection.AwaitEnd();
    close(from_pipe.out);
}
BENCHMARK(WriteFrame)->Arg(64)->Arg(1024)->Arg(65536)->UseRealTime();

// Queue to queue: the writer of one connection and the reader of the other. The writer looks at its queue once in
// UnixPipe::writer_period, so a batch waits up to that long before it moves.
void QueueToQueue(benchmark::State& state) {
    std::size_t const size = FrameSize(state), count = 32 * batch_size / size;
    PipeEnds there, back;
    Connection near(back.out, there.in), far(there.out, back.in);
    UIMessage const message = MessageOf(size);
    for (auto _ : state) {
        for (std::size_t i = 0; i < count; ++i) near.outbound.WriteMessage(message);
        far.Receive(count);
    }
    Report(state, count);
    near.pipe->Kill();
    near.AwaitEnd();
    far.AwaitEnd();
}
BENCHMARK(QueueToQueue)->Arg(1024)->Arg(65536)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
