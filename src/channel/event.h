#pragma once

#include <pthread.h>
#include <time.h>

#include <list>

#include "channel/mutex.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/time/instant.h"

// Conditions that threads wait for, one or two at once and for a limited time.
//
// Each waiter owns a signal and links it to the events that may fire it. The event's mutex is taken before that of a
// signal, never the other way round. Failures of the platform are thrown as MutexError or EventError.
namespace UnixPlatform {

// The absolute time on the real-time clock at which `interval`, counted from now, is over: what pthread_cond_timedwait
// takes. A negative interval counts as zero, the seconds saturate. `thrower` is called with errno when the clock cannot
// be read, and should throw (ThrowError<> does).
timespec ConvertToTimeout(TimeInterval interval, void (*thrower)(int));

// What one waiting thread waits on: fired once, it stays fired.
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

// A signal was linked to an event that is already set.
class AlreadySignaled : public DebuggableException {
  public:
    AlreadySignaled() : DebuggableException("AlreadySignaled") {}
};

class EventLink;

// A condition that threads wait for: set, it stays set and lets every waiter through until it is reset.
//
// Any thread may call. It must outlive every link to it.
class Event {
  public:
    Event() = default;
    Event(Event const&) = delete;
    Event& operator=(Event const&) = delete;

    // Sets the event and fires every linked signal. A link leaves the list as it is fired; when one throws, those after
    // it stay linked.
    void SetEvent();
    void ResetEvent();

    // Links a waiter's signal; throws AlreadySignaled when the event is set. Waiting does not change the event, hence
    // const. EventLink calls these two.
    void AddSignal(EventLink& link) const;
    // Unlinks it; no effect when it is not linked. Afterwards the event no longer touches the signal.
    void RemoveSignal(EventLink& link) const;

  private:
    mutable Mutex mutex_;
    bool signalled_ = false;
    mutable std::list<EventLink*> links_;
};

// Joins one signal to one event for as long as it stands in scope. Both must outlive it.
class EventLink {
  public:
    // Throws AlreadySignaled when the event is set.
    EventLink(EventSignal& signal, Event const& event) : signal_(signal), event_(event) { event_.AddSignal(*this); }
    ~EventLink() { event_.RemoveSignal(*this); }
    EventLink(EventLink const&) = delete;
    EventLink& operator=(EventLink const&) = delete;

    void Fire() { signal_.Fire(); }

  private:
    EventSignal& signal_;
    Event const& event_;
};

void SetEvent(Event& event);
void ResetEvent(Event& event);

// Wait at most `timeout` and answer whether the event, or either of the two, was set; true at once when one is set
// already. EventSignal::WaitOnSignal says how the time is taken.
bool WaitForSingleEvent(Event const& event, TimeInterval timeout);
bool WaitForTwoEvents(Event const& first, Event const& second, TimeInterval timeout);

}  // namespace UnixPlatform
