#pragma once

#include <cerrno>

// What a system call returns, the call repeated for as long as a signal interrupts it.
template <class Call>
auto Resumed(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}
