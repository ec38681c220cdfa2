#pragma once

#include <pthread.h>
#include <time.h>

#include "foundation/time/instant.h"

namespace UnixPlatform {

// What one waiting thread waits on: fired once, it stays fired.
//
// One waiter owns it and links it to the events that may fire it. Failures are thrown as EventError.
class EventSignal {
  public:
    EventSignal() = default;
    ~EventSignal();
    EventSignal(EventSignal const&) = delete;
    EventSignal& operator=(EventSignal const&) = delete;

    // Marks it fired and wakes the waiter. Any thread.
    void Fire();

    // Waits at most `timeout` and answers whether it was woken: true at once when it has fired already, false when the
    // time ran out. Above 4,294,967,294,999 microseconds the wait has no deadline. A spurious wake-up of the platform
    // counts as a wake-up, deliberately: callers look at the state of their own affairs after every wait.
    bool WaitOnSignal(TimeInterval timeout);

  private:
    pthread_mutex_t mutex_ = PTHREAD_MUTEX_INITIALIZER;
    pthread_cond_t wakeup_ = PTHREAD_COND_INITIALIZER;
    bool fired_ = false;
};

// The absolute time on the real-time clock at which `interval`, counted from now, is over: what pthread_cond_timedwait
// takes. A negative interval counts as zero, the seconds saturate. `thrower` is called with errno when the clock cannot
// be read, and should throw (ThrowError<> does).
timespec ConvertToTimeout(TimeInterval interval, void (*thrower)(int));

}  // namespace UnixPlatform
