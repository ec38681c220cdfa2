#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <optional>
#include <string>
#include <vector>

#include "channel/thread_test_support.h"

namespace {

using testing::ElementsAre;

std::string const big(100'000, 'b');

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
struct Connection {
    Connection() {
        signal(SIGPIPE, SIG_IGN);
        ResetEndedThreads();
        EXPECT_EQ(pipe(to_pipe) | pipe(from_pipe), 0);
        reference.emplace(unix_pipe);
    }
    // The client leaves, if it has not yet: the threads end, the pipe goes and gives its descriptors back.
    ~Connection() {
        Leave(to_pipe[1]);
        EXPECT_TRUE(Eventually([&] { return ended_threads == (started ? 2 : 0); }));
        reference.reset();
        EXPECT_FALSE(IsOpen(to_pipe[0]) || IsOpen(from_pipe[1]));
        Leave(from_pipe[0]);
    }
    void Leave(int& end) {
        if (end >= 0) close(end);
        end = -1;
    }

    void Start() { EXPECT_TRUE(started = unix_pipe->Start(to_pipe[0], from_pipe[1])); }
    bool IsKilled() {
        return Eventually([&] { return unix_pipe->Killed(); });
    }

    // The client writes bytes, and waits until the reader has taken them all.
    void Deliver(std::string const& bytes) {
        EXPECT_EQ(write(to_pipe[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        EXPECT_TRUE(Eventually([&] { return BytesWaiting(to_pipe[0]) == 0; }));
    }
    // The texts that arrived, once there are `count` or the pipe is killed.
    std::vector<std::string> Received(std::size_t count) {
        std::vector<std::string> texts;
        EXPECT_TRUE(Eventually([&] {
            bool const last = unix_pipe->Killed();
            FiFoQueue<UIMessage> batch;
            for (inbound.ReadMessages(batch); !batch.IsEmpty();)
                texts.emplace_back(batch.TakeFront().Text().AsStringView());
            return last || texts.size() >= count;
        }));
        return texts;
    }

    void Queue(std::string const& text) { outbound.WriteMessage(UIMessage(UStringRef<UTF8>(std::string_view(text)))); }
    // What the client reads: as many bytes, or up to the end.
    std::string Sent(std::size_t limit = std::string::npos) {
        std::string bytes;
        char buffer[4096];
        for (ssize_t count = 1; bytes.size() < limit && count > 0;) {
            count = read(from_pipe[0], buffer, std::min(sizeof buffer, limit - bytes.size()));
            bytes.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        }
        return bytes;
    }
    // Leaves room for that many bytes in the outbound pipe, and gives back what fills it.
    std::string FillOutput(std::size_t room) {
        std::string const filling(static_cast<std::size_t>(fcntl(from_pipe[1], F_SETPIPE_SZ, 4096)) - room, '.');
        EXPECT_EQ(write(from_pipe[1], filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));
        return filling;
    }

    int to_pipe[2], from_pipe[2];
    UIMessageQueue inbound, outbound;
    UnixPipe* unix_pipe = new UnixPipe(inbound, outbound);
    std::optional<UnixPipeRef> reference;
    bool started = false;
};

struct RunningConnection : Connection {
    RunningConnection() { Start(); }
};

TEST(UnixPipe, AFrameSplitAnywhereArrivesOnce) {
    RunningConnection client;
    std::string const bytes = Frame("") + Frame("a") + Frame("z\xC3\xBCrich\n");
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
        client.Deliver(bytes.substr(0, cut));
        client.Deliver(bytes.substr(cut));
        EXPECT_THAT(client.Received(3), ElementsAre("", "a", "z\xC3\xBCrich\n")) << cut;
    }
    for (char byte : bytes) client.Deliver({byte});
    EXPECT_EQ(client.Received(3).size(), 3u);
}

TEST(UnixPipe, AClientThatLeavesInsideAFrameKillsAndNothingPartialArrives) {
    std::string const bytes = Frame("whole") + Frame("cut");
    for (std::size_t size = Frame("whole").size(); size < bytes.size(); ++size) {
        RunningConnection client;
        client.Deliver(bytes.substr(0, size));
        client.Leave(client.to_pipe[1]);
        EXPECT_THAT(client.Received(2), ElementsAre("whole"));
        EXPECT_EQ(client.Sent(), "") << "the client sees the end as well";
    }
}

TEST(UnixPipe, MessagesGoOutInOrderUntilAnEmptyOneCloses) {
    RunningConnection client;
    for (std::string const text : {"first", big.c_str(), "last", "", "too late"}) client.Queue(text);
    EXPECT_EQ(client.Sent(), Frame("first") + Frame(big) + Frame("last"));
    EXPECT_TRUE(client.IsKilled());
    EXPECT_THROW(client.unix_pipe->WriteMessageToPipe(UIMessage("none")), UnixPipeWriteMessageError);
    EXPECT_NO_THROW(client.unix_pipe->WriteMessageToPipe(UIMessage("")));
}

TEST(UnixPipe, AFrameIsTwoWriteCalls) {
    Connection client;
    fcntl(client.from_pipe[1], F_SETFL, O_DIRECT);  // a pipe that gives back write by write
    client.Start();
    client.Queue(big.substr(0, 4096));
    char buffer[8192];
    EXPECT_EQ(read(client.from_pipe[0], buffer, sizeof buffer), 4);
    EXPECT_EQ(read(client.from_pipe[0], buffer, sizeof buffer), 4096);
}

TEST(UnixPipe, AWriteThatIsNotTakenWholeIsFatalAndNotContinued) {
    bool some_were_taken_in_part = false;
    for (std::size_t room : {0u, 1u, 4u, 2000u, 4096u}) {
        Connection client;
        fcntl(client.from_pipe[1], F_SETFL, O_NONBLOCK);
        std::string const expected = client.FillOutput(room) + (room < 4 ? "" : Header(big.size()));
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

TEST(UnixPipe, InterruptedCallsAreResumed) {
    RunningConnection client;
    std::string const filling = client.FillOutput(0);
    client.Queue("out");
    client.Deliver(Frame("in").substr(0, 5));
    EXPECT_TRUE(Eventually([&] { return client.outbound.IsEmpty(); }));
    InterruptOtherThreads(500);
    client.Deliver("n");
    EXPECT_THAT(client.Received(1), ElementsAre("in"));
    EXPECT_EQ(client.Sent(filling.size() + 7), filling + Frame("out"));
    EXPECT_FALSE(client.unix_pipe->Killed());
}

TEST(UnixPipe, KillDoesNotWaitForABlockedWriterAndKeepsItsNumber) {
    RunningConnection client;
    client.Queue(big);
    client.Queue("never");
    EXPECT_TRUE(Eventually([&] { return BytesWaiting(client.from_pipe[0]) > 4; })) << "the writer is in the text";
    client.unix_pipe->Kill();
    client.unix_pipe->Kill();
    EXPECT_TRUE(client.unix_pipe->Killed());
    EXPECT_TRUE(IsOpen(client.from_pipe[1]));
    EXPECT_EQ(client.Sent(), Frame(big)) << "what had been begun is finished, then comes the end";
}

TEST(UnixPipe, AKillBeforeTheStartEndsBothThreads) {
    Connection client;
    client.unix_pipe->Kill();
    client.Queue("never");
    client.Start();
    EXPECT_EQ(client.Sent(), "");
    EXPECT_TRUE(Eventually([&] { return ended_threads == 2; })) << "with the client still connected";
}

TEST(UnixPipe, APipeWithoutItsThreadsIsKilled) {
    Connection client;
    SetDefaultStackSize(more_stack_than_there_is);
    EXPECT_FALSE(client.unix_pipe->Start(client.to_pipe[0], client.from_pipe[1]));
    SetDefaultStackSize(ordinary_stack);
    EXPECT_TRUE(client.unix_pipe->Killed());
    EXPECT_EQ(client.unix_pipe->GetRefCount(), 1u);
    EXPECT_EQ(client.Sent(), "");
}

TEST(UnixPipe, AClientMayLeaveAtAnyMoment) {
    for (int delay = 0; delay < 300; delay += 10) {
        Connection client;
        client.Queue("anything");
        std::thread leaver([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(delay));
            client.Leave(client.to_pipe[1]);
            client.Leave(client.from_pipe[0]);
        });
        client.Start();
        leaver.join();
        EXPECT_TRUE(client.IsKilled());
    }
}

// Runs a pipe as the process does, and lets the process exit first and its client leave only then: the threads end
// among what exit has destroyed.
[[noreturn]] void ExitBeforeTheThreads() {
    static Connection* client;
    std::atexit([] {
        client->Leave(client->to_pipe[1]);
        bool const over = client->Sent().empty() && Eventually([] { return ended_threads == 2; });
        struct stat null, output;
        stat("/dev/null", &null);
        fstat(1, &output);
        if (!over || !IsOpen(0) || output.st_rdev != null.st_rdev) std::_Exit(1);
    });
    client = new Connection;
    dup2(client->to_pipe[0], 0);
    dup2(client->from_pipe[1], 1);
    close(client->to_pipe[0]);
    close(client->from_pipe[1]);
    bool const started = client->unix_pipe->Start(0, 1);
    client->reference.reset();
    std::exit(started ? 0 : 2);
}

TEST(UnixPipe, TheProcessMayExitBeforeItsThreadsAndKeepsItsStandardStreams) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(ExitBeforeTheThreads(), testing::ExitedWithCode(0), "");
}

}  // namespace
