#pragma once

#include <pthread.h>

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

}  // namespace UnixPlatform
