#pragma once

#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>

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

// Sets the stack that threads get by default. With the second size below, no thread can be started.
inline void SetDefaultStackSize(std::size_t size) {
    pthread_attr_t attributes;
    pthread_getattr_default_np(&attributes);
    pthread_attr_setstacksize(&attributes, size);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}
inline constexpr std::size_t ordinary_stack = 0x800000;
inline constexpr std::size_t more_stack_than_there_is = std::size_t{1} << 47;

// Interrupts the system calls of every thread but the calling one, `count` times over.
inline void InterruptOtherThreads(int count) {
    static std::atomic<int> handled;
    struct sigaction action = {};
    action.sa_handler = [](int) { ++handled; };  // and no SA_RESTART
    sigaction(SIGUSR1, &action, nullptr);
    for (handled = 0; handled < count;) {
        for (auto const& task : std::filesystem::directory_iterator("/proc/self/task"))
            if (int thread = std::atoi(task.path().filename().c_str()); thread != gettid())
                tgkill(getpid(), thread, SIGUSR1);
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
}
