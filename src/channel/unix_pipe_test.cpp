#include "channel/unix_pipe.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "channel/thread_test_support.h"
#include "tools/client_process.h"

namespace {

using testing::ElementsAre;
using tools::Frame;

std::string const kBig(100'000, 'b');

int BytesWaiting(int descriptor) {
    int count = 0;
    ioctl(descriptor, FIONREAD, &count);
    return count;
}

bool IsOpen(int descriptor) {
    return fcntl(descriptor, F_GETFD) != -1;
}

// Interrupts the system calls that the other threads are in.
void InterruptOtherThreads() {
    struct sigaction action = {};
    action.sa_handler = [](int) {};  // and no SA_RESTART
    sigaction(SIGUSR1, &action, nullptr);
    for (auto const& task : std::filesystem::directory_iterator("/proc/self/task"))
        if (int const thread = std::stoi(task.path().filename()); thread != gettid()) tgkill(getpid(), thread, SIGUSR1);
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

    void Start(bool possible = true) { EXPECT_EQ(started = unix_pipe->Start(to_pipe[0], from_pipe[1]), possible); }
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

    void Queue(std::string const& text) { outbound.WriteMessage(UIMessage(UStringRef<UTF8>(text))); }
    // What the client reads up to the end, call by call and as a whole.
    std::vector<std::string> Calls() {
        std::vector<std::string> calls;
        char bytes[8192];
        for (ssize_t count; (count = read(receiving.Get(), bytes, sizeof bytes)) > 0;)
            calls.emplace_back(bytes, static_cast<std::size_t>(count));
        return calls;
    }
    std::string Sent() {
        std::string bytes;
        for (auto const& call : Calls()) bytes += call;
        return bytes;
    }

    int to_pipe[2], from_pipe[2];
    tools::Descriptor sending, receiving;
    UIMessageQueue inbound, outbound;
    UnixPipe* unix_pipe = new UnixPipe(inbound, outbound);
    std::optional<UnixPipeRef> reference{unix_pipe};
    bool started = false;
};

TEST(UnixPipe, TakesAFrameOnceWhereverItIsCutOrInterruptedAndNoneThatIsNotWhole) {
    std::string const bytes = Frame("") + Frame("a") + Frame("z\xC3\xBCrich\n"), last = Frame("last");
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
        Connection client;
        client.Start();
        client.Deliver(bytes.substr(0, cut));
        InterruptOtherThreads();
        client.Deliver(bytes.substr(cut));
        EXPECT_THAT(client.Received(3), ElementsAre("", "a", "z\xC3\xBCrich\n")) << cut;
        client.Deliver(last.substr(0, cut % last.size()));
        client.sending.Close();
        EXPECT_THAT(client.Received(1), ElementsAre()) << cut;
        EXPECT_EQ(client.Sent(), "") << "the client sees the end as well";
    }
}

TEST(UnixPipe, WritesAMessageInTwoCallsAndEndsWithAnEmptyOne) {
    Connection client;
    fcntl(client.from_pipe[1], F_SETFL, O_DIRECT);  // a pipe that gives back write by write
    client.Start();
    std::string const page(4096, 'p');
    for (auto const* text : {"first", page.c_str(), "", "lost"}) client.Queue(text);
    EXPECT_THAT(client.Calls(), ElementsAre(Frame("first").substr(0, 4), "first", Frame(page).substr(0, 4), page));
    EXPECT_TRUE(client.IsKilled());
}

TEST(UnixPipe, EndsWithAWriteThatIsNotTakenWhole) {
    for (std::size_t room : {0u, 4u, 2000u}) {
        Connection client;
        std::string filling(static_cast<std::size_t>(fcntl(client.from_pipe[1], F_SETPIPE_SZ, 4096)) - room, '.');
        EXPECT_EQ(write(client.from_pipe[1], filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));
        fcntl(client.from_pipe[1], F_SETFL, O_NONBLOCK);
        client.Start();
        client.Queue(kBig);
        EXPECT_TRUE(client.IsKilled());
        std::string const sent = client.Sent(), begun = filling + (room < 4 ? "" : Frame(kBig).substr(0, 4));
        EXPECT_TRUE(sent.starts_with(begun) && sent.size() < Frame(kBig).size()) << room;
    }
}

TEST(UnixPipe, IsKilledWithoutWaitingForABlockedWriterWhichKeepsItsNumber) {
    Connection client;
    client.Start();
    client.Queue(kBig);
    client.Queue("never");
    EXPECT_TRUE(Eventually([&] { return BytesWaiting(client.from_pipe[0]) > 4; })) << "the writer is in the text";
    client.unix_pipe->Kill();
    client.unix_pipe->Kill();
    EXPECT_TRUE(client.unix_pipe->Killed());
    EXPECT_TRUE(IsOpen(client.from_pipe[1]));
    EXPECT_EQ(client.Sent(), Frame(kBig)) << "what had been begun is finished, then comes the end";
}

TEST(UnixPipe, IsKilledAndSaysSoOnStandardErrorWithoutItsThreads) {
    Connection client;
    SetDefaultStackSize(std::size_t{1} << 47);  // more than there is
    testing::internal::CaptureStderr();
    client.Start(false);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to pthread_create (" + std::to_string(EAGAIN) + ")\n");
    SetDefaultStackSize(kOrdinaryStack);
    EXPECT_TRUE(client.unix_pipe->Killed());
    EXPECT_EQ(client.Sent(), "");
}

TEST(UnixPipe, IsKilledWhenItsClientLeavesAtAnyMoment) {
    for (int delay = 0; delay < 300; delay += 10) {
        Connection client;
        client.Queue("anything");
        std::jthread const leaver([&] {
            for (int i = 0; i < delay; ++i) std::this_thread::yield();
            client.sending.Close();
        });
        if (delay == 0) client.unix_pipe->Kill();  // as by a reader that is done before there is a writer
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

TEST(UnixPipe, OutlivesTheProcesssExitAndKeepsItsStandardStreams) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(ExitBeforeTheThreads(), testing::ExitedWithCode(0), "");
}

}  // namespace
