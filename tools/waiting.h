#pragma once

#include <chrono>
#include <thread>

namespace tools {

using Milliseconds = std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// What is left until `deadline`, never negative.
inline Milliseconds Remaining(Clock::time_point deadline) {
    auto left = std::chrono::ceil<Milliseconds>(deadline - Clock::now());
    return left > Milliseconds::zero() ? left : Milliseconds::zero();
}

// Asks `condition` every few milliseconds until it holds or `limit` has passed, at least once. Returns whether it held.
template <class Condition>
bool WaitUntil(Milliseconds limit, Condition condition) {
    auto deadline = Clock::now() + limit;
    while (!condition()) {
        if (Clock::now() >= deadline) return false;
        std::this_thread::sleep_for(Milliseconds(5));
    }
    return true;
}

}  // namespace tools
