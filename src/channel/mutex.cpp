#include "channel/mutex.h"

namespace UnixPlatform {

using Locker = PlatformLocker<MutexError>;

Mutex::~Mutex() {
    pthread_cond_destroy(&released_);
    pthread_mutex_destroy(&platform_mutex_);
}

bool Mutex::Available() const {
    return count_ == 0 || pthread_equal(owner_, pthread_self());
}

void Mutex::Acquire() {
    owner_ = pthread_self();
    ++count_;
}

Mutex* WaitForMutex(Mutex& mutex) {
    Locker locker(mutex.platform_mutex_);
    while (!mutex.Available()) ThrowError<MutexError>(pthread_cond_wait(&mutex.released_, &mutex.platform_mutex_));
    mutex.Acquire();
    return &mutex;
}

Mutex* TryMutex(Mutex& mutex) {
    Locker locker(mutex.platform_mutex_);
    if (!mutex.Available()) return nullptr;
    mutex.Acquire();
    return &mutex;
}

void ReleaseMutex(Mutex* mutex) {
    if (!mutex) return;
    Locker locker(mutex->platform_mutex_);
    if (--mutex->count_ == 0) ThrowError<MutexError>(pthread_cond_signal(&mutex->released_));
}

}  // namespace UnixPlatform
