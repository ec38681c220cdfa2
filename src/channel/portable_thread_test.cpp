#include "channel/portable_thread.h"

#include <gtest/gtest.h>

#include "channel/thread_test_support.h"

namespace {

std::atomic<int> runs;
std::atomic<std::size_t> stack_size;

void LookAndThrow(void*) {
    std::size_t size = 0;
    pthread_attr_t attributes;
    pthread_getattr_np(pthread_self(), &attributes);
    pthread_attr_getstacksize(&attributes, &size);
    pthread_attr_destroy(&attributes);
    stack_size = size;
    throw ++runs;
}

TEST(PortableThread, StaysUntilAbandonedOrFreesItselfHoweverItsFunctionEnds) {
    ResetEndedThreads();
    SetDefaultStackSize(0x40000);
    PortableThread* owned = PortableThread::CreatePortableThreadSuspended(LookAndThrow, nullptr);
    EXPECT_TRUE(PortableThread::RunPortableThread(LookAndThrow, nullptr));
    EXPECT_TRUE(Eventually([] { return ended_threads == 1; }));
    EXPECT_EQ(runs, 1) << "the other one is suspended";
    EXPECT_GE(stack_size, 0x80000u) << "at least: a sanitizer may add its own";
    SetDefaultStackSize(kOrdinaryStack);
    EXPECT_TRUE(owned->Start() && owned->Start()) << "the second start finds it running";
    EXPECT_TRUE(Eventually([&] { return owned->Completed(); }));
    EXPECT_EQ(pthread_kill(owned->Handle(), 0), 0);
    EXPECT_GE(stack_size, kOrdinaryStack);
    owned->Abandon();
    EXPECT_TRUE(Eventually([] { return ended_threads == 2; }));
    EXPECT_EQ(runs, 2);
}

}  // namespace
