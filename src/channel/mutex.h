#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

namespace UnixPlatform {

// A recursive mutex built by hand, so that it knows its owner and can be tried without blocking.
//
// The owner may take it again and then owes as many releases. All failures of the platform are thrown as MutexError.
// It must be free, with nobody waiting, when it is destroyed.
class Mutex {
  public:
    Mutex() = default;
    ~Mutex();
    Mutex(Mutex const&) = delete;
    Mutex& operator=(Mutex const&) = delete;

    // Whether the calling thread may acquire it now: it is free, or the caller owns it already. To a caller other than
    // the functions below, which hold the platform mutex meanwhile, this is the state of a moment.
    bool Available() const;

    // One more acquisition for the calling thread. Only for a caller that found the mutex available.
    void Acquire();

  private:
    friend Mutex* WaitForMutex(Mutex& mutex);
    friend Mutex* TryMutex(Mutex& mutex);
    friend void ReleaseMutex(Mutex* mutex);

    pthread_mutex_t platform_mutex_ = PTHREAD_MUTEX_INITIALIZER;  // held while what follows changes
    pthread_cond_t released_ = PTHREAD_COND_INITIALIZER;
    std::atomic<pthread_t> owner_{};  // means something only while count_ is not 0
    std::atomic<std::uint32_t> count_ = 0;
};

// Blocks until the calling thread owns the mutex. Returns the mutex, to be handed to ReleaseMutex.
Mutex* WaitForMutex(Mutex& mutex);

// The same without blocking: null when another thread owns it.
Mutex* TryMutex(Mutex& mutex);

// Gives back one acquisition, and with the last one wakes one waiter. Null is ignored. A thread that does not own the
// mutex gets MutexError with EPERM, and nothing changes.
void ReleaseMutex(Mutex* mutex);

}  // namespace UnixPlatform
