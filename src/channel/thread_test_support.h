#pragma once

#include <pthread.h>

#include <atomic>

#include "channel/portable_thread.h"
#include "tools/waiting.h"

// Waits until the condition holds, and answers whether it came to hold within half a minute.
template <class Condition>
bool Eventually(Condition condition) {
    return tools::WaitUntil(std::chrono::seconds(30), condition);
}

// How many threads of the program's own have freed themselves, since the last reset.
inline std::atomic<int> ended_threads;
inline void ResetEndedThreads() {
    [[maybe_unused]] static bool const counted = (AtThreadExit([] { ++ended_threads; }), true);
    ended_threads = 0;
}

// Sets the stack that threads get by default.
inline constexpr std::size_t kOrdinaryStack = 0x800000;
inline void SetDefaultStackSize(std::size_t size) {
    pthread_attr_t attributes;
    pthread_getattr_default_np(&attributes);
    pthread_attr_setstacksize(&attributes, size);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}
