#include "channel/portable_thread.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "channel/millisecond_sleep.h"
#include "channel/thread_exit.h"
#include "channel/thread_test_support.h"

namespace {

// What a thread's function leaves behind.
struct Trace {
    std::atomic<int> runs = 0;
    std::atomic<std::size_t> stack_size = 0;
};

void Leave(void* argument) {
    auto& trace = *static_cast<Trace*>(argument);
    pthread_attr_t attributes;
    std::size_t size = 0;
    pthread_getattr_np(pthread_self(), &attributes);
    pthread_attr_getstacksize(&attributes, &size);
    pthread_attr_destroy(&attributes);
    trace.stack_size = size;
    ++trace.runs;
}

void LeaveAndThrow(void* argument) {
    Leave(argument);
    throw std::runtime_error("from a thread");
}

void SetDefaultStackSize(std::size_t size) {
    pthread_attr_t attributes;
    pthread_getattr_default_np(&attributes);
    pthread_attr_setstacksize(&attributes, size);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}

class PortableThreadTest : public testing::Test {
  protected:
    PortableThreadTest() { ThreadsAtRest(); }
    // Whatever a case started frees itself.
    ~PortableThreadTest() override { EXPECT_TRUE(ThreadsAreAtRest()); }

    Trace trace_;
};

TEST_F(PortableThreadTest, AnOwnedThreadStaysUntilAbandonedHoweverItsFunctionEnds) {
    for (auto function : {Leave, LeaveAndThrow}) {
        trace_.runs = 0;
        PortableThread* thread = PortableThread::CreatePortableThreadSuspended(function, &trace_);
        EXPECT_EQ(Threads().size(), ThreadsAtRest());
        EXPECT_TRUE(thread->Start());
        EXPECT_TRUE(thread->Start()) << "a second start finds it running";
        EXPECT_TRUE(Eventually([&] { return thread->Completed(); }));
        EXPECT_EQ(pthread_kill(thread->Handle(), 0), 0);
        EXPECT_EQ(Threads().size(), ThreadsAtRest() + 1);
        thread->Abandon();
        EXPECT_TRUE(ThreadsAreAtRest());
        EXPECT_EQ(trace_.runs, 1);
    }
}

TEST_F(PortableThreadTest, AFireAndForgetThreadFreesItself) {
    EXPECT_TRUE(PortableThread::RunPortableThread(Leave, &trace_));
    EXPECT_TRUE(PortableThread::RunPortableThread(LeaveAndThrow, &trace_));
    EXPECT_TRUE(ThreadsAreAtRest());
    EXPECT_EQ(trace_.runs, 2);
}

TEST_F(PortableThreadTest, NoFunctionGivesNoThread) {
    EXPECT_EQ(PortableThread::CreatePortableThreadSuspended(nullptr, &trace_), nullptr);
    EXPECT_EQ(PortableThread::CreatePortableThread(nullptr, &trace_), nullptr);
    EXPECT_FALSE(PortableThread::RunPortableThread(nullptr, &trace_));
    EXPECT_EQ(PortableThread::WaitForAbandon(new PortableThread::StartBlock{Leave, &trace_, nullptr}), nullptr);
    EXPECT_EQ(trace_.runs, 0);
}

TEST_F(PortableThreadTest, ASmallDefaultStackIsRaisedAndALargeOneKept) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the sanitizer's own thread storage does not fit into the least stack";
#endif
    for (std::size_t size : {0x10000u, 0x80000u, 0x300000u}) {
        SetDefaultStackSize(size);
        trace_.stack_size = 0;
        PortableThread::CreatePortableThread(Leave, &trace_)->Abandon();
        EXPECT_TRUE(ThreadsAreAtRest());
        // A sanitizer may add room of its own.
        EXPECT_GE(trace_.stack_size, std::max<std::size_t>(size, PortableThread::minimum_stack_size));
    }
}

TEST_F(PortableThreadTest, AThreadThatCannotStartSaysSoOnStandardError) {
    SetDefaultStackSize(std::size_t{1} << 47);  // more than an address space
    testing::internal::CaptureStderr();
    EXPECT_EQ(PortableThread::CreatePortableThread(Leave, &trace_), nullptr);
    EXPECT_FALSE(PortableThread::RunPortableThread(Leave, &trace_));
    std::string const line = "Unable to pthread_create (" + std::to_string(EAGAIN) + ")\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), line + line);
    SetDefaultStackSize(0x800000);
}

TEST_F(PortableThreadTest, ExitRoutinesRunInOrderAtTheEndOfEveryThread) {
    static std::atomic<int> order;
    AtThreadExit([] { order = order * 10 + 1; });
    AtThreadExit([] { order = order * 10 + 2; });
    PortableThread* owned = PortableThread::CreatePortableThread(Leave, &trace_);
    EXPECT_TRUE(Eventually([&] { return owned->Completed(); }));
    EXPECT_EQ(order, 0) << "not before the thread ends";
    owned->Abandon();
    EXPECT_TRUE(ThreadsAreAtRest());
    PortableThread::RunPortableThread(Leave, &trace_);
    EXPECT_TRUE(ThreadsAreAtRest());
    EXPECT_EQ(order, 1212);
}

TEST_F(PortableThreadTest, SignalsDoNotCutASleepShort) {
    auto const start = std::chrono::steady_clock::now();
    std::atomic<bool> awake = false;
    std::thread sleeper([&] {
        MilliSecondSleep(1100);
        awake = true;
    });
    InterruptOtherThreads(50);
    sleeper.join();
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1100));
}

}  // namespace
