#include "channel/event.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <future>
#include <thread>

#include "channel/platform_error.h"

using namespace UnixPlatform;

namespace {

TimeInterval const no_time(0), forever(LLONG_MAX);

TEST(Mutex, IsOwnedUntilTheLastReleaseOfItsOwner) {
    Mutex mutex;
    auto another_thread_gets_it = [&] {
        auto attempt = [&] {
            Mutex* const taken = TryMutex(mutex);
            ReleaseMutex(taken);
            return taken == &mutex;
        };
        return std::async(std::launch::async, attempt).get();
    };
    EXPECT_EQ(WaitForMutex(mutex), &mutex);
    EXPECT_EQ(TryMutex(mutex), &mutex);
    ReleaseMutex(&mutex);
    EXPECT_FALSE(another_thread_gets_it());
    ReleaseMutex(&mutex);
    EXPECT_TRUE(another_thread_gets_it());
    EXPECT_THROW(ReleaseMutex(&mutex), MutexError);
}

TEST(Mutex, LetsOneThreadInAtATime) {
    Mutex mutex;
    int count = 0;
    auto add = [&] {
        for (int i = 0; i < 3'000; ++i, ReleaseMutex(&mutex)) {
            WaitForMutex(mutex);
            int const found = count;
            std::this_thread::yield();
            count = found + 1;
        }
    };
    { std::jthread first(add), second(add), third(add); }
    EXPECT_EQ(count, 9'000);
}

TEST(Event, LetsWaitersThroughWhileItIsSet) {
    Event first, second;
    EXPECT_FALSE(WaitForSingleEvent(first, no_time));
    EXPECT_FALSE(WaitForTwoEvents(first, second, TimeInterval(LLONG_MIN)));
    SetEvent(first);
    EXPECT_TRUE(WaitForSingleEvent(first, forever));
    EXPECT_TRUE(WaitForTwoEvents(first, second, forever));
    EXPECT_TRUE(WaitForTwoEvents(second, first, forever));
    EXPECT_FALSE(WaitForSingleEvent(second, no_time));
    ResetEvent(first);
    EXPECT_FALSE(WaitForTwoEvents(first, second, TimeInterval(1)));
}

TEST(Event, WakesAThreadThatWaitsInAnyWay) {
    std::atomic<int> turn = 0;
    Event events[2], never;
    auto play = [&](int mine) {
        for (int next = mine; next < 2000; next += 2) {
            TimeInterval const timeout = next % 3 ? forever : TimeInterval(4'294'967'294'999);
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

TEST(Event, FiresWhatIsLinkedAndThatStaysFired) {
    Event event;
    EventSignal linked, unlinked;
    EventLink link(linked, event);
    { EventLink gone(unlinked, event); }
    event.SetEvent();
    EXPECT_TRUE(linked.WaitOnSignal(forever));
    EXPECT_FALSE(unlinked.WaitOnSignal(no_time));
}

TEST(Timeout, IsTheClockPlusTheIntervalWithTheNanosecondsCarried) {
    using namespace std::chrono;
    auto now = [] { return duration_cast<microseconds>(system_clock::now().time_since_epoch()).count(); };
    for (long long interval : {LLONG_MIN, -1LL, 0LL, 1LL, 999'999LL, 61'500'000LL, LLONG_MAX}) {
        auto const before = now();
        timespec const deadline = ConvertToTimeout(TimeInterval(interval), ThrowError<EventError>);
        __int128 const end = deadline.tv_sec * __int128{1'000'000} + deadline.tv_nsec / 1000;
        __int128 const start = end - std::max(interval, 0LL);
        EXPECT_TRUE(before <= start && start <= now()) << interval;
        EXPECT_LT(deadline.tv_nsec, 1'000'000'000);
    }
}

}  // namespace
