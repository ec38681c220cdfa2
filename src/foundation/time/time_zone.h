#pragma once

#include "foundation/time/time_interval.h"

// An offset from UTC, positive east of Greenwich.
class TimeZone {
  public:
    // UTC itself.
    constexpr TimeZone() = default;
    constexpr explicit TimeZone(int seconds) : seconds_(seconds), microseconds_(seconds * TimeInterval::kSecond) {}

    // The offset of local time that is in force now. It is used for other times of the year as well.
    static TimeZone Local();

    constexpr int Seconds() const { return seconds_; }
    constexpr long long Microseconds() const { return microseconds_; }

    constexpr bool operator==(TimeZone const&) const = default;

  private:
    int seconds_ = 0;
    long long microseconds_ = 0;
};
