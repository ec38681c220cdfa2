#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

#include "foundation/base/debuggable_exception.h"

// Failures of the POSIX thread calls under the classes of UnixPlatform, told apart by what was being operated.
namespace UnixPlatform {

// Carries the platform's error number (an errno value).
class PlatformError : public DebuggableException {
  public:
    PlatformError(char const* message, int number) : DebuggableException(message), number_(number) {}
    int Number() const { return number_; }

  private:
    int number_;
};

class MutexError : public PlatformError {
  public:
    explicit MutexError(int number) : PlatformError("MutexError", number) {}
};

class EventError : public PlatformError {
  public:
    explicit EventError(int number) : PlatformError("EventError", number) {}
};

// Throws an Error for the result of a platform call that is not zero.
template <class Error>
void ThrowError(int number) {
    if (number != 0) throw Error(number);
}

// Holds a platform mutex for as long as it stands in scope; throws an Error when it cannot be locked.
template <class Error>
class PlatformLocker {
  public:
    explicit PlatformLocker(pthread_mutex_t& mutex) : mutex_(mutex) { ThrowError<Error>(pthread_mutex_lock(&mutex_)); }
    ~PlatformLocker() { pthread_mutex_unlock(&mutex_); }
    PlatformLocker(PlatformLocker const&) = delete;
    PlatformLocker& operator=(PlatformLocker const&) = delete;

  private:
    pthread_mutex_t& mutex_;
};

// A recursive mutex built by hand, so that it knows its owner and can be tried without blocking.
//
// The owner may take it once more and then owes as many releases. Failures of the platform are thrown as MutexError.
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

// Gives back one acquisition, and with the last one wakes one waiter. Null is ignored. Only the thread that owns the
// mutex may call it.
void ReleaseMutex(Mutex* mutex);

}  // namespace UnixPlatform
