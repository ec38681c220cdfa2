#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <csignal>
#include <memory>
#include <optional>
#include <string>

#include "channel/thread_exit.h"
#include "channel/thread_test_support.h"

namespace {

using testing::ElementsAre;

std::string const big(100'000, 'b');
std::string const too_long_by_one{1, 0, 0x20, 0};

std::string Header(std::size_t size) {
    return {static_cast<char>(size), static_cast<char>(size >> 8), static_cast<char>(size >> 16),
            static_cast<char>(size >> 24)};
}

std::string Frame(std::string const& text) {
    return Header(text.size()) + text;
}

int BytesWaiting(int descriptor) {
    int count = 0;
    ioctl(descriptor, FIONREAD, &count);
    return count;
}

bool IsOpen(int descriptor) {
    return fcntl(descriptor, F_GETFD) != -1;
}

// A pipe and, in the same process, the client at the other ends of its descriptors.
class Connection {
  public:
    Connection() {
        std::signal(SIGPIPE, SIG_IGN);
        ThreadsAtRest();
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        input_ = ends[0], client_out_ = ends[1];
        EXPECT_EQ(pipe(ends), 0);
        client_in_ = ends[0], output_ = ends[1];
        pipe_ = new UnixPipe(inbound_, outbound_);
        reference_.emplace(pipe_);
    }
    // The client leaves: the threads end, the pipe goes, and its descriptors are given back.
    ~Connection() {
        Release();
        EXPECT_FALSE(IsOpen(input_) || IsOpen(output_));
        if (client_in_ >= 0) close(client_in_);
        EXPECT_TRUE(ThreadsAreAtRest());
    }
    void Release() {
        CloseClientOut();
        EXPECT_TRUE(Eventually([&] { return pipe_->GetRefCount() == 1; }));
        reference_.reset();
    }

    UnixPipe& Pipe() { return *pipe_; }
    void Start() { EXPECT_TRUE(pipe_->Start(input_, output_)); }
    bool IsKilled() {
        return Eventually([&] { return pipe_->Killed(); });
    }

    // The client writes bytes, and waits until the reader has taken them all.
    void Deliver(std::string const& bytes) {
        EXPECT_EQ(write(client_out_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        EXPECT_TRUE(Eventually([&] { return BytesWaiting(input_) == 0; }));
    }
    void CloseClientOut() {
        if (client_out_ >= 0) close(client_out_);
        client_out_ = -1;
    }
    void CloseClientIn() { close(std::exchange(client_in_, -1)); }

    // The texts that arrived, once there are `count` or the pipe is killed.
    std::vector<std::string> Received(std::size_t count) {
        std::vector<std::string> texts;
        auto take = [&] {
            bool const last = pipe_->Killed();
            FiFoQueue<UIMessage> batch;
            inbound_.ReadMessages(batch);
            while (!batch.IsEmpty()) texts.emplace_back(batch.TakeFront().Text().AsStringView());
            return last || texts.size() >= count;
        };
        EXPECT_TRUE(Eventually(take));
        return texts;
    }

    void Queue(std::string const& text) { outbound_.WriteMessage(UIMessage(UStringRef<UTF8>(std::string_view(text)))); }
    bool QueueIsTaken() {
        return Eventually([&] { return outbound_.IsEmpty(); });
    }
    // What the client reads: as many bytes, or up to the end.
    std::string Sent(std::size_t limit = std::string::npos) {
        std::string bytes;
        char buffer[4096];
        ssize_t count = 1;
        while (bytes.size() < limit && count > 0) {
            count = read(client_in_, buffer, std::min(sizeof buffer, limit - bytes.size()));
            bytes.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        }
        return bytes;
    }
    // Leaves room for that many bytes in the outbound pipe, and gives back what fills it.
    std::string FillOutput(std::size_t room) {
        auto const capacity = static_cast<std::size_t>(fcntl(output_, F_SETPIPE_SZ, 4096));
        std::string const filling(capacity - room, '.');
        EXPECT_EQ(write(output_, filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));
        return filling;
    }

    int input_, output_, client_in_, client_out_;

  private:
    UIMessageQueue inbound_, outbound_;
    UnixPipe* pipe_;
    std::optional<UnixPipeRef> reference_;
};

TEST(UnixPipe, AFrameSplitAnywhereArrivesOnce) {
    Connection client;
    client.Start();
    std::string const bytes = Frame("") + Frame("a") + Frame("z\xC3\xBCrich\n");
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
        client.Deliver(bytes.substr(0, cut));
        client.Deliver(bytes.substr(cut));
        EXPECT_THAT(client.Received(3), ElementsAre("", "a", "z\xC3\xBCrich\n")) << cut;
    }
    for (char byte : bytes) client.Deliver({byte});
    EXPECT_EQ(client.Received(3).size(), 3u);
}

TEST(UnixPipe, TwoMebibytesAreAcceptedAndOneByteMoreKills) {
    Connection client;
    client.Start();
    std::string const longest(UnixPipe::longest_payload, 'x');
    client.Deliver(Frame(longest));
    EXPECT_THAT(client.Received(1), ElementsAre(longest));
    EXPECT_FALSE(client.Pipe().Killed());
    client.Deliver(too_long_by_one);
    EXPECT_TRUE(client.IsKilled());
    EXPECT_TRUE(client.Received(1).empty());
}

TEST(UnixPipe, AClientThatLeavesInsideAFrameKillsAndNothingPartialArrives) {
    std::string const bytes = Frame("whole") + Frame("cut");
    for (std::size_t size = Frame("whole").size(); size < bytes.size(); ++size) {
        Connection client;
        client.Start();
        client.Deliver(bytes.substr(0, size));
        client.CloseClientOut();
        EXPECT_THAT(client.Received(2), ElementsAre("whole"));
        EXPECT_TRUE(client.IsKilled());
        EXPECT_EQ(client.Sent(), "") << "the client sees the end as well";
    }
}

TEST(UnixPipe, MessagesGoOutInOrderUntilAnEmptyOneCloses) {
    Connection client;
    client.Start();
    std::string expected;
    for (std::string const text : {"first", "<\xE2\x82\xAC/>", big.c_str()}) {
        client.Queue(text);
        expected += Frame(text);
    }
    EXPECT_EQ(client.Sent(expected.size()), expected);
    client.Queue("last");
    client.Queue("");
    client.Queue("too late");
    EXPECT_EQ(client.Sent(), Frame("last"));
    EXPECT_TRUE(client.IsKilled());
    EXPECT_THROW(client.Pipe().WriteMessageToPipe(UIMessage("none")), UnixPipeWriteMessageError);
    EXPECT_NO_THROW(client.Pipe().WriteMessageToPipe(UIMessage("")));
}

TEST(UnixPipe, AWriteThatIsNotTakenWholeIsFatalAndNotContinued) {
    bool some_were_taken_in_part = false;
    for (std::size_t room : {0u, 1u, 4u, 10u, 2000u, 4096u}) {
        Connection client;
        fcntl(client.output_, F_SETFL, O_NONBLOCK);
        std::string expected = client.FillOutput(room);
        if (room >= 4) expected += Header(big.size());
        client.Start();
        client.Queue(big);
        EXPECT_TRUE(client.IsKilled());
        std::string const sent = client.Sent();
        EXPECT_EQ(sent.substr(0, expected.size()), expected);
        EXPECT_LE(sent.size(), 4096u);
        some_were_taken_in_part |= sent.size() > expected.size();
    }
    EXPECT_TRUE(some_were_taken_in_part);
}

TEST(UnixPipe, AClientThatOnlyStopsListeningKillsWithoutASignal) {
    Connection client;
    client.Start();
    client.CloseClientIn();
    client.Queue("nobody");
    EXPECT_TRUE(client.IsKilled());
}

TEST(UnixPipe, InterruptedCallsAreResumed) {
    Connection client;
    client.Start();
    std::string const filling = client.FillOutput(0);
    client.Queue("out");
    client.Deliver(Frame("in").substr(0, 5));
    EXPECT_TRUE(client.QueueIsTaken());
    InterruptOtherThreads(500);
    client.Deliver("n");
    EXPECT_THAT(client.Received(1), ElementsAre("in"));
    EXPECT_EQ(client.Sent(filling.size() + 7), filling + Frame("out"));
    EXPECT_FALSE(client.Pipe().Killed());
}

TEST(UnixPipe, KillDoesNotWaitForABlockedWriterAndKeepsItsNumber) {
    Connection client;
    client.Start();
    client.Queue(big);
    client.Queue("never");
    EXPECT_TRUE(Eventually([&] { return BytesWaiting(client.client_in_) > 4; })) << "the writer is in the text";
    client.Pipe().Kill();
    client.Pipe().Kill();
    EXPECT_TRUE(client.Pipe().Killed());
    int const next = open("/dev/null", O_RDONLY);
    EXPECT_NE(next, client.output_);
    close(next);
    EXPECT_EQ(client.Sent(), Frame(big)) << "what had been begun is finished, then comes the end";
}

TEST(UnixPipe, AKillBeforeTheStartEndsBothThreads) {
    Connection client;
    client.Pipe().Kill();
    client.Queue("never");
    client.Start();
    EXPECT_EQ(client.Sent(), "");
    EXPECT_TRUE(Eventually([&] { return client.Pipe().GetRefCount() == 1; })) << "with the client still connected";
}

TEST(UnixPipe, AClientMayLeaveAtAnyMoment) {
    for (int delay = 0; delay < 300; delay += 10) {
        Connection client;
        client.Queue("anything");
        std::thread leaver([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(delay));
            client.CloseClientOut();
            client.CloseClientIn();
        });
        client.Start();
        leaver.join();
        EXPECT_TRUE(client.IsKilled());
    }
}

// Runs a pipe as the process does, until its client leaves.
[[noreturn]] void ServeStandardStreams() {
    Connection client;
    dup2(client.input_, 0);
    dup2(client.output_, 1);
    close(client.input_);
    close(client.output_);
    EXPECT_TRUE(client.Pipe().Start(0, 1));
    client.CloseClientOut();
    bool const client_sees_end = client.Sent().empty();
    client.Release();
    struct stat null, output;
    stat("/dev/null", &null);
    std::_Exit(client_sees_end && IsOpen(0) && fstat(1, &output) == 0 && output.st_rdev == null.st_rdev ? 0 : 1);
}

TEST(UnixPipe, StandardStreamsKeepTheirNumbers) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(ServeStandardStreams(), testing::ExitedWithCode(0), "");
}

// Lets the process exit first and its client leave only then, so that the threads end among what exit has destroyed.
[[noreturn]] void ExitBeforeTheThreads() {
    static auto& inbound = *new UIMessageQueue;
    static auto& outbound = *new UIMessageQueue;
    static std::atomic<int> ended;
    static int to_pipe[2], from_pipe[2];
    std::atexit([] {
        close(to_pipe[1]);
        if (!Eventually([] { return ended == 2; })) std::_Exit(1);
    });
    AtThreadExit([] { ++ended; });
    if (pipe(to_pipe) != 0 || pipe(from_pipe) != 0) std::_Exit(2);
    auto* pipe = new UnixPipe(inbound, outbound);
    UnixPipeRef const reference(pipe);
    std::exit(pipe->Start(to_pipe[0], from_pipe[1]) ? 0 : 3);
}

TEST(UnixPipe, TheProcessMayExitBeforeItsThreads) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(ExitBeforeTheThreads(), testing::ExitedWithCode(0), "");
}

TEST(UnixPipe, CountsReferencesFromZero) {
    UIMessageQueue inbound, outbound;
    UnixPipe pipe(inbound, outbound);
    EXPECT_EQ(pipe.RemoveReference(), 0u);
    EXPECT_EQ(pipe.AddReference(), 1u);
    EXPECT_EQ(pipe.AddReference(), 2u);
    EXPECT_EQ(pipe.RemoveReference(), 1u);
    EXPECT_EQ(pipe.GetRefCount(), 1u);
}

}  // namespace
