#include "channel/event.h"

#include <algorithm>
#include <cerrno>
#include <limits>

#include "channel/mutex.h"

namespace UnixPlatform {

using Locker = PlatformLocker<EventError>;

namespace {

// The longest wait with a deadline: one microsecond short of 0xFFFFFFFF milliseconds.
constexpr TimeInterval longest_timed_wait(4'294'967'294'999);

time_t AddSeconds(time_t now, long long seconds) {
    // One below the largest value, so that carrying the nanoseconds cannot overflow.
    constexpr time_t latest = std::numeric_limits<time_t>::max() - 1;
    return now > latest - seconds ? latest : static_cast<time_t>(now + seconds);
}

}  // namespace

EventSignal::~EventSignal() {
    pthread_cond_destroy(&wakeup_);
    pthread_mutex_destroy(&mutex_);
}

void EventSignal::Fire() {
    Locker locker(mutex_);
    fired_ = true;
    ThrowError<EventError>(pthread_cond_signal(&wakeup_));
}

bool EventSignal::WaitOnSignal(TimeInterval timeout) {
    Locker locker(mutex_);
    if (fired_) return true;
    if (timeout > longest_timed_wait) {
        ThrowError<EventError>(pthread_cond_wait(&wakeup_, &mutex_));
        return true;
    }
    timespec const deadline = ConvertToTimeout(timeout, ThrowError<EventError>);
    int const result = pthread_cond_timedwait(&wakeup_, &mutex_, &deadline);
    if (result == ETIMEDOUT) return false;
    ThrowError<EventError>(result);
    return true;
}

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

namespace {

class MutexHolder {
  public:
    explicit MutexHolder(Mutex& mutex) : mutex_(WaitForMutex(mutex)) {}
    ~MutexHolder() { ReleaseMutex(mutex_); }
    MutexHolder(MutexHolder const&) = delete;
    MutexHolder& operator=(MutexHolder const&) = delete;

  private:
    Mutex* mutex_;
};

}  // namespace

void Event::SetEvent() {
    MutexHolder holder(mutex_);
    signalled_ = true;
    while (!links_.empty()) {
        EventLink* link = links_.front();
        links_.pop_front();
        link->Fire();
    }
}

void Event::ResetEvent() {
    MutexHolder holder(mutex_);
    signalled_ = false;
}

void Event::AddSignal(EventLink& link) const {
    MutexHolder holder(mutex_);
    if (signalled_) throw AlreadySignaled();
    links_.push_back(&link);
}

void Event::RemoveSignal(EventLink& link) const {
    MutexHolder holder(mutex_);
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
