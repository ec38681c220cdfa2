#pragma once

#include <cerrno>

// The result of a system call, repeated for as long as a signal interrupts it.
template <class Call>
auto Resumed(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}
