#include "channel/event.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace UnixPlatform {

namespace {

using SignalLocker = PlatformLocker<EventError>;

// One microsecond short of 0xFFFFFFFF milliseconds.
constexpr TimeInterval kLongestTimedWait(4'294'967'294'999);

// The latest second is one below the largest value, so that carrying the nanoseconds cannot overflow.
time_t AddSeconds(time_t now, long long seconds) {
    constexpr time_t kLatest = std::numeric_limits<time_t>::max() - 1;
    return now > kLatest - seconds ? kLatest : static_cast<time_t>(now + seconds);
}

class EventLocker {
  public:
    explicit EventLocker(Mutex& mutex) : mutex_(WaitForMutex(mutex)) {}
    ~EventLocker() { ReleaseMutex(mutex_); }
    EventLocker(EventLocker const&) = delete;
    EventLocker& operator=(EventLocker const&) = delete;

  private:
    Mutex* mutex_;
};

}  // namespace

timespec ConvertToTimeout(TimeInterval interval, void (*thrower)(int)) {
    timespec deadline{};
    if (clock_gettime(CLOCK_REALTIME, &deadline) != 0) thrower(errno);
    long long const wait = std::max(interval.Microseconds(), 0LL);
    deadline.tv_sec = AddSeconds(deadline.tv_sec, wait / 1'000'000);
    deadline.tv_nsec += static_cast<long>(wait % 1'000'000 * 1000);
    if (deadline.tv_nsec >= 1'000'000'000) {
        deadline.tv_nsec -= 1'000'000'000;
        ++deadline.tv_sec;
    }
    return deadline;
}

EventSignal::~EventSignal() {
    pthread_cond_destroy(&wakeup_);
    pthread_mutex_destroy(&mutex_);
}

void EventSignal::Fire() {
    SignalLocker locker(mutex_);
    fired_ = true;
    ThrowError<EventError>(pthread_cond_signal(&wakeup_));
}

bool EventSignal::WaitOnSignal(TimeInterval timeout) {
    SignalLocker locker(mutex_);
    if (fired_) return true;
    if (timeout > kLongestTimedWait) {
        ThrowError<EventError>(pthread_cond_wait(&wakeup_, &mutex_));
        return true;
    }
    timespec const deadline = ConvertToTimeout(timeout, ThrowError<EventError>);
    int const result = pthread_cond_timedwait(&wakeup_, &mutex_, &deadline);
    if (result == ETIMEDOUT) return false;
    ThrowError<EventError>(result);
    return true;
}

void Event::SetEvent() {
    EventLocker locker(mutex_);
    signalled_ = true;
    while (!links_.empty()) {
        EventLink* link = links_.front();
        links_.pop_front();
        link->Fire();
    }
}

void Event::ResetEvent() {
    EventLocker locker(mutex_);
    signalled_ = false;
}

void Event::AddSignal(EventLink& link) const {
    EventLocker locker(mutex_);
    if (signalled_) throw AlreadySignaled();
    links_.push_back(&link);
}

void Event::RemoveSignal(EventLink& link) const {
    EventLocker locker(mutex_);
    links_.remove(&link);
}

void SetEvent(Event& event) {
    event.SetEvent();
}

void ResetEvent(Event& event) {
    event.ResetEvent();
}

bool WaitForSingleEvent(Event const& event, TimeInterval timeout) {
    EventSignal signal;
    try {
        EventLink link(signal, event);
        return signal.WaitOnSignal(timeout);
    } catch (AlreadySignaled const&) {
        return true;
    }
}

bool WaitForTwoEvents(Event const& first, Event const& second, TimeInterval timeout) {
    EventSignal signal;
    try {
        EventLink first_link(signal, first);
        EventLink second_link(signal, second);
        return signal.WaitOnSignal(timeout);
    } catch (AlreadySignaled const&) {
        return true;
    }
}

}  // namespace UnixPlatform
