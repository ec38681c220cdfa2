#pragma once

#include <limits>

// 64-bit arithmetic that stops at the ends of the range instead of overflowing, so that a time far in the future stays
// in the future.

constexpr long long SaturatingAdd(long long left, long long right) {
    long long sum = 0;
    if (!__builtin_add_overflow(left, right, &sum)) return sum;
    return left < 0 ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

constexpr long long SaturatingSubtract(long long left, long long right) {
    long long difference = 0;
    if (!__builtin_sub_overflow(left, right, &difference)) return difference;
    return left < 0 ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

constexpr long long SaturatingMultiply(long long left, long long right) {
    long long product = 0;
    if (!__builtin_mul_overflow(left, right, &product)) return product;
    return (left < 0) != (right < 0) ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}
