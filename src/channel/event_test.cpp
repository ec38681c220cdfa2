#include "channel/event.h"

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <thread>

using namespace UnixPlatform;

namespace {

TimeInterval const kNoTime(0), kForever(LLONG_MAX);

TEST(Mutex, IsOwnedUntilTheLastReleaseOfItsOwner) {
    Mutex mutex;
    Mutex* taken_by_another;
    auto const let_another_try = [&] { ReleaseMutex(taken_by_another = TryMutex(mutex)); };
    EXPECT_EQ(WaitForMutex(mutex), &mutex);
    EXPECT_EQ(TryMutex(mutex), &mutex);
    ReleaseMutex(&mutex);
    std::thread(let_another_try).join();
    EXPECT_EQ(taken_by_another, nullptr);
    ReleaseMutex(&mutex);
    std::thread(let_another_try).join();
    EXPECT_EQ(taken_by_another, &mutex);
}

TEST(Event, LetsWaitersThroughWhileItIsSetAndFiresWhatIsLinked) {
    Event first, second;
    EventSignal linked;
    EventLink link(linked, first);
    EXPECT_FALSE(WaitForSingleEvent(first, kNoTime));
    EXPECT_FALSE(WaitForTwoEvents(first, second, TimeInterval(LLONG_MIN)));
    SetEvent(first);
    EXPECT_TRUE(linked.WaitOnSignal(kForever));
    EXPECT_TRUE(WaitForSingleEvent(first, kForever));
    EXPECT_TRUE(WaitForTwoEvents(second, first, kForever));
    ResetEvent(first);
    EXPECT_FALSE(WaitForTwoEvents(first, second, TimeInterval(1)));
}

TEST(Event, WakesAThreadThatWaitsInAnyWay) {
    std::atomic<int> turn = 0;
    Event events[2], never;
    auto play = [&](int mine) {
        for (int next = mine; next < 2000; next += 2) {
            TimeInterval const timeout = next % 3 ? kForever : TimeInterval(4'294'967'294'999);
            while (turn < next)  // a wake-up may be spurious
                next % 4 < 2 ? WaitForSingleEvent(events[mine], timeout)
                             : WaitForTwoEvents(never, events[mine], timeout);
            ResetEvent(events[mine]);
            turn = next + 1;
            SetEvent(events[1 - mine]);
        }
    };
    { std::jthread first(play, 0), second(play, 1); }
    EXPECT_EQ(turn, 2000);
}

}  // namespace
