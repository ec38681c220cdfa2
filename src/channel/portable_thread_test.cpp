#include "channel/portable_thread.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "channel/thread_test_support.h"

namespace {

std::atomic<int> runs;

void Leave(void*) {
    ++runs;
}

void LeaveAndThrow(void*) {
    ++runs;
    throw std::runtime_error("from a thread");
}

struct PortableThreadTest : testing::Test {
    PortableThreadTest() {
        ResetEndedThreads();
        runs = 0;
    }
    // Whether so many threads have run and are gone.
    bool Ended(int count) {
        return Eventually([=] { return ended_threads == count; }) && runs == count;
    }
};

TEST_F(PortableThreadTest, AnOwnedThreadStaysUntilAbandonedHoweverItsFunctionEnds) {
    int ended = 0;
    for (auto function : {Leave, LeaveAndThrow}) {
        PortableThread* thread = PortableThread::CreatePortableThreadSuspended(function, nullptr);
        EXPECT_EQ(runs, ended);
        EXPECT_TRUE(thread->Start() && thread->Start()) << "the second start finds it running";
        EXPECT_TRUE(Eventually([&] { return thread->Completed(); }));
        EXPECT_EQ(pthread_kill(thread->Handle(), 0), 0);
        EXPECT_EQ(ended_threads, ended);
        thread->Abandon();
        EXPECT_TRUE(Ended(++ended));
    }
}

TEST_F(PortableThreadTest, AFireAndForgetThreadFreesItself) {
    EXPECT_TRUE(PortableThread::RunPortableThread(Leave, nullptr));
    EXPECT_TRUE(PortableThread::RunPortableThread(LeaveAndThrow, nullptr));
    EXPECT_TRUE(Ended(2));
}

TEST_F(PortableThreadTest, NoFunctionOrNoObjectGivesNoThread) {
    EXPECT_EQ(PortableThread::CreatePortableThread(nullptr, nullptr), nullptr);
    EXPECT_FALSE(PortableThread::RunPortableThread(nullptr, nullptr));
    EXPECT_EQ(PortableThread::WaitForAbandon(new PortableThread::StartBlock{Leave, nullptr, nullptr}), nullptr);
    EXPECT_EQ(runs, 0);
}

TEST_F(PortableThreadTest, ASmallDefaultStackIsRaisedAndALargeOneKept) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the sanitizer's own thread storage does not fit into the least stack";
#endif
    int ended = 0;
    for (std::size_t size : {0x10000u, 0x300000u}) {
        SetDefaultStackSize(size);
        PortableThread* thread = PortableThread::CreatePortableThread(Leave, nullptr);
        pthread_attr_t attributes;
        pthread_getattr_np(thread->Handle(), &attributes);
        std::size_t stack_size = 0;
        pthread_attr_getstacksize(&attributes, &stack_size);
        pthread_attr_destroy(&attributes);
        EXPECT_GE(stack_size, std::max<std::size_t>(size, 0x80000));
        thread->Abandon();
        EXPECT_TRUE(Ended(++ended));
    }
}

TEST_F(PortableThreadTest, AThreadThatCannotStartSaysSoOnStandardError) {
    SetDefaultStackSize(more_stack_than_there_is);
    testing::internal::CaptureStderr();
    EXPECT_EQ(PortableThread::CreatePortableThread(Leave, nullptr), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to pthread_create (" + std::to_string(EAGAIN) + ")\n");
    SetDefaultStackSize(ordinary_stack);
}

TEST_F(PortableThreadTest, ExitRoutinesRunInTheOrderOfTheirRegistration) {
    static std::atomic<unsigned> order;  // goes on, and round, with the threads of later tests
    AtThreadExit([] { order = order * 10 + 1; });
    AtThreadExit([] { order = order * 10 + 2; });
    PortableThread::RunPortableThread(Leave, nullptr);
    EXPECT_TRUE(Eventually([] { return order == 12; }));
}

}  // namespace
