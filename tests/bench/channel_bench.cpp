// Frames through real pipes: how fast the reader thread takes them in, how fast one is written, and whole batches
// through both threads of a connection that hears itself.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <thread>

#include "channel/unix_pipe.h"
#include "tools/client_process.h"

namespace {

// How many bytes of text one batch has, whatever the size of its frames.
constexpr std::size_t batch_size = 1 << 20;

struct Ends {
    int reading, writing;
};

Ends MakePipe() {
    int ends[2];
    if (pipe(ends) != 0) std::abort();
    return {ends[0], ends[1]};
}

// A connection that runs.
struct Connection {
    Connection(int input, int output) {
        std::signal(SIGPIPE, SIG_IGN);
        if (!pipe->Start(input, output)) std::abort();
    }
    // Waits for its client's end: the threads use the queues for as long as they hold references.
    ~Connection() {
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
    UnixPipeRef pipe{new UnixPipe(inbound, outbound)};
};

std::string TextOf(benchmark::State const& state) {
    return std::string(static_cast<std::size_t>(state.range(0)), 'x');
}

void Report(benchmark::State& state, std::size_t frames) {
    auto const total = state.iterations() * static_cast<std::int64_t>(frames);
    state.SetItemsProcessed(total);
    state.SetBytesProcessed(total * state.range(0));
}

// From bytes in the pipe to messages in the queue.
void ReadFrames(benchmark::State& state) {
    auto const text = TextOf(state);
    auto const count = batch_size / text.size();
    std::string frames;
    for (std::size_t i = 0; i < count; ++i) frames += tools::Frame(text);
    auto const to_pipe = MakePipe();
    Connection connection(to_pipe.reading, open("/dev/null", O_WRONLY));
    for (auto _ : state) {
        if (write(to_pipe.writing, frames.data(), frames.size()) != static_cast<ssize_t>(frames.size()))
            state.SkipWithError("the reader has gone");
        connection.Receive(count);
    }
    Report(state, count);
    close(to_pipe.writing);
}
BENCHMARK(ReadFrames)->Arg(64)->Arg(1024)->Arg(65536)->Arg(1 << 20)->UseRealTime();

// One frame at a time into the pipe, with a client that keeps up.
void WriteFrame(benchmark::State& state) {
    auto const to_pipe = MakePipe(), from_pipe = MakePipe();
    Connection connection(to_pipe.reading, from_pipe.writing);
    std::jthread const client([from_pipe] {
        std::string buffer(1 << 16, '\0');
        while (read(from_pipe.reading, buffer.data(), buffer.size()) > 0) continue;
        close(from_pipe.reading);
    });
    UIMessage const message{UStringRef<UTF8>(TextOf(state))};
    for (auto _ : state) connection.pipe->WriteMessageToPipe(message);
    Report(state, 1);
    close(to_pipe.writing);
}
BENCHMARK(WriteFrame)->Arg(64)->Arg(1024)->Arg(65536)->UseRealTime();

// The writer looks at its queue once in UnixPipe::writer_period, so a batch waits up to that long before it moves.
void QueueToQueue(benchmark::State& state) {
    auto const text = TextOf(state);
    auto const count = 32 * batch_size / text.size();
    auto const back = MakePipe();
    Connection connection(back.reading, back.writing);
    UIMessage const message{UStringRef<UTF8>(text)};
    for (auto _ : state) {
        for (std::size_t i = 0; i < count; ++i) connection.outbound.WriteMessage(message);
        connection.Receive(count);
    }
    Report(state, count);
    connection.pipe->Kill();
}
BENCHMARK(QueueToQueue)->Arg(1024)->Arg(65536)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
