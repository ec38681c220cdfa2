#pragma once

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

// What the tests of threads share: waiting for a condition, counting threads, disturbing them with signals.

// Waits until the condition holds, and answers whether it came to hold within half a minute.
template <class Condition>
bool Eventually(Condition condition) {
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

// The threads of this process, as the kernel knows them.
inline std::vector<pid_t> Threads() {
    std::vector<pid_t> threads;
    for (auto const& task : std::filesystem::directory_iterator("/proc/self/task"))
        threads.push_back(std::atoi(task.path().filename().c_str()));
    return threads;
}

// How many threads there are when no case has started any: a sanitizer starts one of its own with the first.
inline std::size_t ThreadsAtRest() {
    static std::size_t const count = [] {
        pid_t first;
        std::thread([&first] { first = gettid(); }).join();
        Eventually([first] { return !std::ranges::count(Threads(), first); });
        return Threads().size();
    }();
    return count;
}

// Waits until all threads that a case started are gone.
inline bool ThreadsAreAtRest() {
    return Eventually([] { return Threads().size() == ThreadsAtRest(); });
}

// Interrupts the system calls of every thread but the calling one, `count` times over.
inline void InterruptOtherThreads(int count) {
    static std::atomic<int> handled;
    struct sigaction action = {};
    action.sa_handler = [](int) { ++handled; };  // and no SA_RESTART
    sigaction(SIGUSR1, &action, nullptr);
    for (handled = 0; handled < count;) {
        for (pid_t thread : Threads())
            if (thread != gettid()) tgkill(getpid(), thread, SIGUSR1);
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
}
