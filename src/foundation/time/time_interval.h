#pragma once

#include <compare>

#include "foundation/time/saturate.h"

// A signed length of time in whole microseconds. Arithmetic saturates at the ends of 64 bits.
class TimeInterval {
  public:
    static constexpr long long kSecond = 1'000'000;
    static constexpr long long kMinute = 60 * kSecond;
    static constexpr long long kHour = 60 * kMinute;
    static constexpr long long kDay = 24 * kHour;

    constexpr TimeInterval() = default;
    constexpr explicit TimeInterval(long long microseconds) : microseconds_(microseconds) {}
    static constexpr TimeInterval Seconds(long long count) { return TimeInterval(SaturatingMultiply(count, kSecond)); }
    static constexpr TimeInterval Minutes(long long count) { return TimeInterval(SaturatingMultiply(count, kMinute)); }

    constexpr long long Microseconds() const { return microseconds_; }

    constexpr auto operator<=>(TimeInterval const&) const = default;

  private:
    long long microseconds_ = 0;
};

constexpr TimeInterval operator+(TimeInterval left, TimeInterval right) {
    return TimeInterval(SaturatingAdd(left.Microseconds(), right.Microseconds()));
}
constexpr TimeInterval operator-(TimeInterval left, TimeInterval right) {
    return TimeInterval(SaturatingSubtract(left.Microseconds(), right.Microseconds()));
}
constexpr TimeInterval operator-(TimeInterval interval) {
    return TimeInterval() - interval;
}
