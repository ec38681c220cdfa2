#pragma once

#include <mutex>

// A plain lock between threads. The thread that holds it may take it once more and then owes as many unlocks as locks.
//
// Not copyable: it stands inside what it guards. Take it through an AccessLocker.
class AccessLock {
  public:
    // Blocks until no other thread holds the lock.
    void Lock() { mutex_.lock(); }
    // Gives one Lock() back. Only the thread that holds the lock may call it.
    void Unlock() { mutex_.unlock(); }

  private:
    std::recursive_mutex mutex_;
};

// Holds an AccessLock for as long as it stands in scope.
class AccessLocker {
  public:
    explicit AccessLocker(AccessLock& lock) : lock_(lock) { lock_.Lock(); }
    ~AccessLocker() { lock_.Unlock(); }
    AccessLocker(AccessLocker const&) = delete;
    AccessLocker& operator=(AccessLocker const&) = delete;

  private:
    AccessLock& lock_;
};
