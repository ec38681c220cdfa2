#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>

#include <optional>
#include <string>
#include <vector>

#include "channel/thread_test_support.h"
#include "tools/client_process.h"

namespace {

using testing::ElementsAre;
using tools::Frame;

std::string const big(100'000, 'b');

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
        sending = tools::Descriptor(to_pipe[1]);
        receiving = tools::Descriptor(from_pipe[0]);
    }
    // The client leaves, if it has not yet: the threads end, the pipe goes and gives its descriptors back.
    ~Connection() {
        sending.Close();
        EXPECT_TRUE(Eventually([&] { return ended_threads == (started ? 2 : 0); }));
        reference.reset();
        EXPECT_FALSE(IsOpen(to_pipe[0]) || IsOpen(from_pipe[1]));
    }

    void Start() { EXPECT_TRUE(started = unix_pipe->Start(to_pipe[0], from_pipe[1])); }
    bool IsKilled() {
        return Eventually([&] { return unix_pipe->Killed(); });
    }

    // The client writes bytes, and waits until the reader has taken them all.
    void Deliver(std::string const& bytes) {
        EXPECT_EQ(write(sending.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
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
    // What one call of the client's reads.
    std::string ReadOnce() {
        char bytes[8192];
        ssize_t const count = read(receiving.Get(), bytes, sizeof bytes);
        return {bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }
    // What it reads up to the end.
    std::string Sent() {
        std::string bytes;
        for (std::string more; !(more = ReadOnce()).empty();) bytes += more;
        return bytes;
    }

    int to_pipe[2], from_pipe[2];
    tools::Descriptor sending, receiving;
    UIMessageQueue inbound, outbound;
    UnixPipe* unix_pipe = new UnixPipe(inbound, outbound);
    std::optional<UnixPipeRef> reference{unix_pipe};
    bool started = false;
};

TEST(UnixPipe, AFrameSplitAndInterruptedAnywhereArrivesOnceAndOneCutOffDoesNot) {
    std::string const bytes = Frame("") + Frame("a") + Frame("z\xC3\xBCrich\n"), last = Frame("last");
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
        Connection client;
        client.Start();
        client.Deliver(bytes.substr(0, cut));
        InterruptOtherThreads(2);
        client.Deliver(bytes.substr(cut));
        EXPECT_THAT(client.Received(3), ElementsAre("", "a", "z\xC3\xBCrich\n")) << cut;
        client.Deliver(last.substr(0, cut % last.size()));
        client.sending.Close();
        EXPECT_THAT(client.Received(1), ElementsAre()) << cut;
        EXPECT_EQ(client.Sent(), "") << "the client sees the end as well";
    }
}

TEST(UnixPipe, AMessageIsTwoWriteCallsAndAnEmptyOneCloses) {
    Connection client;
    fcntl(client.from_pipe[1], F_SETFL, O_DIRECT);  // a pipe that gives back write by write
    client.Start();
    std::string const page(4096, 'p');
    for (std::string const& text : {std::string("first"), page, std::string(), page}) client.Queue(text);
    for (auto const& expected :
         {Frame("first").substr(0, 4), std::string("first"), Frame(page).substr(0, 4), page, std::string()})
        EXPECT_EQ(client.ReadOnce(), expected);
    EXPECT_TRUE(client.IsKilled());
    EXPECT_THROW(client.unix_pipe->WriteMessageToPipe(UIMessage("none")), UnixPipeWriteMessageError);
    EXPECT_NO_THROW(client.unix_pipe->WriteMessageToPipe(UIMessage("")));
}

TEST(UnixPipe, AWriteThatIsNotTakenWholeIsFatalAndNotContinued) {
    for (std::size_t room : {0u, 1u, 4u, 2000u, 4096u}) {
        Connection client;
        std::string filling(static_cast<std::size_t>(fcntl(client.from_pipe[1], F_SETPIPE_SZ, 4096)) - room, '.');
        EXPECT_EQ(write(client.from_pipe[1], filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));
        fcntl(client.from_pipe[1], F_SETFL, O_NONBLOCK);
        client.Start();
        client.Queue(big);
        EXPECT_TRUE(client.IsKilled());
        std::string const sent = client.Sent(), expected = filling + (room < 4 ? "" : Frame(big).substr(0, 4));
        EXPECT_TRUE(sent.starts_with(expected)) << room;
        EXPECT_EQ(sent.size() > expected.size(), room > 4) << "some of the text is taken where there is room";
    }
}

TEST(UnixPipe, KillDoesNotWaitForABlockedWriterAndKeepsItsNumber) {
    Connection client;
    client.Start();
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

TEST(UnixPipe, APipeWithoutItsThreadsIsKilledAndSaysSoOnStandardError) {
    Connection client;
    SetDefaultStackSize(more_stack_than_there_is);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(client.unix_pipe->Start(client.to_pipe[0], client.from_pipe[1]));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to pthread_create (" + std::to_string(EAGAIN) + ")\n");
    SetDefaultStackSize(ordinary_stack);
    EXPECT_TRUE(client.unix_pipe->Killed());
    EXPECT_EQ(client.Sent(), "");
}

TEST(UnixPipe, AClientMayLeaveAtAnyMoment) {
    for (int delay = 0; delay < 300; delay += 10) {
        Connection client;
        client.Queue("anything");
        std::jthread leaver([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(delay));
            client.sending.Close();
            client.receiving.Close();
        });
        client.Start();
        EXPECT_TRUE(client.IsKilled());
    }
}

// Runs a pipe as the process does, and lets the process exit first and its client leave only then: the threads end
// among what exit has destroyed.
[[noreturn]] void ExitBeforeTheThreads() {
    static Connection& client = *new Connection;
    std::atexit([] {
        client.sending.Close();
        bool const over = client.Sent().empty() && Eventually([] { return ended_threads == 2; });
        if (!over || !IsOpen(0) || std::filesystem::read_symlink("/proc/self/fd/1") != "/dev/null") std::_Exit(1);
    });
    dup2(client.to_pipe[0], 0);
    dup2(client.from_pipe[1], 1);
    close(client.from_pipe[1]);
    client.unix_pipe->Start(0, 1);
    client.reference.reset();
    std::exit(0);
}

TEST(UnixPipe, TheProcessMayExitBeforeItsThreadsAndKeepsItsStandardStreams) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(ExitBeforeTheThreads(), testing::ExitedWithCode(0), "");
}

}  // namespace
