#pragma once

#include <compare>
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

class TimeObject;

// A point in time: microseconds since 1970-01-01 00:00:00 UTC. Arithmetic saturates, so the last instant sorts after
// every other and never wraps into the past.
class Instant {
  public:
    // 1970-01-01 00:00:00 UTC.
    constexpr Instant() = default;
    constexpr explicit Instant(long long microseconds) : microseconds_(microseconds) {}
    // The instant at which a clock in the object's zone reads the object's date and time. A time outside the range of
    // an Instant (years up to 294246) gives the nearest one that there is.
    explicit Instant(TimeObject const& time);

    // The current time, to the whole second: it is what a wall clock shows. TimeMark measures finer.
    static Instant Now();

    constexpr long long Microseconds() const { return microseconds_; }

    constexpr auto operator<=>(Instant const&) const = default;

  private:
    long long microseconds_ = 0;
};

constexpr Instant operator+(Instant instant, TimeInterval interval) {
    return Instant(SaturatingAdd(instant.Microseconds(), interval.Microseconds()));
}
constexpr Instant operator-(Instant instant, TimeInterval interval) {
    return Instant(SaturatingSubtract(instant.Microseconds(), interval.Microseconds()));
}
constexpr TimeInterval operator-(Instant later, Instant earlier) {
    return TimeInterval(SaturatingSubtract(later.Microseconds(), earlier.Microseconds()));
}

// Finer time than Instant: for measuring how long something took. Any thread may call.
class TimeMark {
  public:
    // The time since the first call in the process, to the microsecond. It follows the real-time clock, so it jumps
    // when that clock is set.
    static TimeInterval Now();
};
