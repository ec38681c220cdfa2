#include "channel/event.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <future>
#include <thread>

#include "channel/platform_error.h"
#include "channel/thread_killer.h"

using namespace UnixPlatform;

namespace {

TimeInterval const no_time(0), forever(LLONG_MAX);

template <class Function>
auto OnAnotherThread(Function function) {
    return std::async(std::launch::async, function).get();
}

TEST(Mutex, IsOwnedUntilTheLastReleaseOfItsOwner) {
    Mutex mutex;
    auto others_try = [&] {
        Mutex* taken = TryMutex(mutex);
        ReleaseMutex(taken);
        return taken;
    };
    EXPECT_EQ(WaitForMutex(mutex), &mutex);
    EXPECT_EQ(TryMutex(mutex), &mutex);
    EXPECT_TRUE(mutex.Available());
    ReleaseMutex(&mutex);
    EXPECT_FALSE(OnAnotherThread([&] { return mutex.Available(); }));
    EXPECT_EQ(OnAnotherThread(others_try), nullptr);
    ReleaseMutex(&mutex);
    EXPECT_EQ(OnAnotherThread(others_try), &mutex);
    ReleaseMutex(nullptr);
    try {
        ReleaseMutex(&mutex);
        ADD_FAILURE() << "released without being owned";
    } catch (MutexError const& error) {
        EXPECT_EQ(error.Number(), EPERM);
    }
}

TEST(Mutex, LetsOneThreadInAtATime) {
    Mutex mutex;
    int count = 0;
    auto add = [&] {
        for (int i = 0; i < 2000; ++i) {
            WaitForMutex(mutex);
            ++count;
            ReleaseMutex(&mutex);
        }
    };
    std::thread threads[] = {std::thread(add), std::thread(add), std::thread(add)};
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(count, 6000);
}

TEST(Event, LetsWaitersThroughWhileItIsSet) {
    Event first, second;
    EXPECT_FALSE(WaitForSingleEvent(first, no_time));
    EXPECT_FALSE(WaitForSingleEvent(first, TimeInterval(LLONG_MIN)));
    EXPECT_FALSE(WaitForTwoEvents(first, second, TimeInterval(1)));
    SetEvent(first);
    EXPECT_TRUE(WaitForSingleEvent(first, forever));
    EXPECT_TRUE(WaitForTwoEvents(first, second, forever));
    EXPECT_TRUE(WaitForTwoEvents(second, first, forever));
    EXPECT_FALSE(WaitForSingleEvent(second, no_time));
    ResetEvent(first);
    EXPECT_FALSE(WaitForTwoEvents(first, second, no_time));
    EXPECT_FALSE(WaitForSingleEvent(ThreadKiller::m_Event, no_time));
    EXPECT_FALSE(ThreadKiller::m_kill);
}

TEST(Event, WakesThreadsThatWaitInEveryWay) {
    struct {
        std::atomic<int> turn = 0;
        Event ping, pong, never;
    } game;
    // A wake-up may be spurious: whoever waits looks at the turn again.
    auto await = [&](int turn, Event& event, TimeInterval timeout) {
        while (game.turn < turn)
            turn % 4 ? WaitForSingleEvent(event, timeout) : WaitForTwoEvents(game.never, event, timeout);
        ResetEvent(event);
    };
    auto play = [&](int turn, Event& own, Event& other) {
        for (; turn < 2000; turn += 2) {
            await(turn, own, turn % 3 ? forever : TimeInterval(4'294'967'294'999));
            game.turn = turn + 1;
            SetEvent(other);
        }
    };
    std::thread partner([&] { play(1, game.pong, game.ping); });
    play(0, game.ping, game.pong);
    partner.join();
    EXPECT_EQ(game.turn, 2000);
}

TEST(Event, FiresOnlyWhatIsLinked) {
    Event event;
    EventSignal linked, unlinked;
    EventLink link(linked, event);
    { EventLink gone(unlinked, event); }
    EXPECT_FALSE(linked.WaitOnSignal(no_time));
    event.SetEvent();
    EXPECT_TRUE(linked.WaitOnSignal(forever));
    EXPECT_FALSE(unlinked.WaitOnSignal(no_time));
    EXPECT_THROW(EventLink(unlinked, event), AlreadySignaled);
}

TEST(Timeout, IsTheClockPlusTheIntervalWithTheNanosecondsCarried) {
    struct {
        long long microseconds, seconds;
        long nanoseconds;
    } const table[] = {{LLONG_MIN, 0, 0},
                       {-1, 0, 0},
                       {0, 0, 0},
                       {1, 0, 1000},
                       {999'999, 0, 999'999'000},
                       {61'500'000, 61, 500'000'000},
                       {LLONG_MAX, 9'223'372'036'854, 775'807'000}};
    auto total = [](timespec const& time) { return static_cast<__int128>(time.tv_sec) * 1'000'000'000 + time.tv_nsec; };
    for (auto const& row : table) {
        __int128 const wait = static_cast<__int128>(row.seconds) * 1'000'000'000 + row.nanoseconds;
        timespec before, after;
        clock_gettime(CLOCK_REALTIME, &before);
        timespec const deadline = ConvertToTimeout(TimeInterval(row.microseconds), ThrowError<EventError>);
        clock_gettime(CLOCK_REALTIME, &after);
        EXPECT_TRUE(total(before) + wait <= total(deadline) && total(deadline) <= total(after) + wait)
            << row.microseconds;
        EXPECT_LT(deadline.tv_nsec, 1'000'000'000);
    }
}

}  // namespace
