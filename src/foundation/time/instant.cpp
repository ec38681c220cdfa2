#include "foundation/time/instant.h"

#include <ctime>

#include "foundation/time/time_object.h"

namespace {

TimeInterval RealTimeClock() {
    std::timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return TimeInterval(now.tv_sec * TimeInterval::kSecond + now.tv_nsec / 1'000);
}

}  // namespace

Instant::Instant(TimeObject const& time)
    : microseconds_(
          SaturatingMultiply(time.SecondsSinceYear0() - TimeObject::kSecondsBefore1970, TimeInterval::kSecond)) {}

Instant Instant::Now() {
    // Broken down as local time and put together with the same offset it would be the same second in every zone without
    // leap seconds, the only ones that POSIX time has: the zone file need not be looked at.
    return Instant() + TimeInterval::Seconds(std::time(nullptr));
}

TimeInterval TimeMark::Now() {
    static TimeInterval const first = RealTimeClock();
    return RealTimeClock() - first;
}
