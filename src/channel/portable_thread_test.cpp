#include "channel/portable_thread.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "channel/thread_test_support.h"

namespace {

std::atomic<int> runs;

void LeaveAndThrow(void*) {
    ++runs;
    throw std::runtime_error("from a thread");
}

TEST(PortableThread, StaysUntilAbandonedOrFreesItselfHoweverItsFunctionEnds) {
    ResetEndedThreads();
    PortableThread* owned = PortableThread::CreatePortableThreadSuspended(LeaveAndThrow, nullptr);
    EXPECT_TRUE(PortableThread::RunPortableThread(LeaveAndThrow, nullptr));
    EXPECT_TRUE(Eventually([] { return ended_threads == 1; }));
    EXPECT_EQ(runs, 1) << "the other one is suspended";
    EXPECT_TRUE(owned->Start() && owned->Start()) << "the second start finds it running";
    EXPECT_TRUE(Eventually([&] { return owned->Completed(); }));
    EXPECT_EQ(pthread_kill(owned->Handle(), 0), 0);
    EXPECT_EQ(ended_threads, 1);
    owned->Abandon();
    EXPECT_TRUE(Eventually([] { return ended_threads == 2; }));
    EXPECT_EQ(runs, 2);
}

}  // namespace
