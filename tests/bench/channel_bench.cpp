// Batches of frames through real pipes: from the client's end to the queue, and from one queue to the other through both
// threads of a connection that hears itself.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <thread>

#include "channel/unix_pipe.h"
#include "tools/client_process.h"

namespace {

// How many bytes of text one batch has, whatever the size of its frames.
constexpr std::size_t kBatchSize = 32 << 20;

enum Way { FromTheClient, FromQueueToQueue };

// Waits until `count` messages have arrived.
void Receive(UIMessageQueue& queue, std::size_t count) {
    while (count > 0) {
        FiFoQueue<UIMessage> batch;
        queue.ReadMessages(batch);
        if (batch.IsEmpty()) std::this_thread::yield();
        for (; !batch.IsEmpty(); --count) benchmark::DoNotOptimize(batch.TakeFront());
    }
}

// The writer looks at its queue once in UnixPipe::kWriterPeriod, so a batch waits up to that long before it moves.
void Frames(benchmark::State& state, Way way) {
    std::signal(SIGPIPE, SIG_IGN);
    std::string const text(static_cast<std::size_t>(state.range(0)), 'x');
    auto const count = kBatchSize / text.size();
    UIMessageQueue inbound, outbound;
    UnixPipeRef const pipe_under_test(new UnixPipe(inbound, outbound));
    int ends[2];
    bool const ready = pipe(ends) == 0;
    int const output = way == FromTheClient ? open("/dev/null", O_WRONLY) : ends[1];
    if (!ready || !pipe_under_test->Start(ends[0], output)) return state.SkipWithError("no connection");
    std::string const frame = tools::Frame(text);
    UIMessage const message{UStringRef<UTF8>(text)};
    for (auto _ : state) {
        std::jthread const sender([&] {
            for (std::size_t i = 0; i < count; ++i)
                if (way == FromQueueToQueue)
                    outbound.WriteMessage(message);
                else if (write(ends[1], frame.data(), frame.size()) < 0)
                    std::abort();
        });
        Receive(inbound, count);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBatchSize));
    pipe_under_test->Kill();
    if (way == FromTheClient) close(ends[1]);
    while (pipe_under_test->GetRefCount() > 1) std::this_thread::yield();  // its threads use the queues
}
BENCHMARK_CAPTURE(Frames, FromTheClient, FromTheClient)->Arg(64)->Arg(1024)->Arg(65536)->Arg(1 << 21)->UseRealTime();
BENCHMARK_CAPTURE(Frames, QueueToQueue, FromQueueToQueue)->Arg(1024)->Arg(65536)->Arg(1 << 21)->UseRealTime();

}  // namespace
