#pragma once

#include "foundation/time/time_interval.h"

// Finer time than Instant: for measuring how long something took. Any thread may call.
class TimeMark {
  public:
    // The time since the first call in the process, to the microsecond. It follows the real-time clock, so it jumps
    // when that clock is set.
    static TimeInterval Now();
};
