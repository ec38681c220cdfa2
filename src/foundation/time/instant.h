#pragma once

#include <compare>

#include "foundation/time/saturate.h"
#include "foundation/time/time_interval.h"

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
