#include "channel/event.h"

namespace UnixPlatform {

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
