#include "foundation/time/instant.h"

#include <ctime>

#include "foundation/time/time_object.h"

TimeObject ReadLocalClock() {
    // localtime_r alone may go on using the zone of its first call.
    tzset();
    std::time_t const now = std::time(nullptr);
    std::tm fields{};
    if (!localtime_r(&now, &fields)) return TimeObject(Instant() + TimeInterval::Seconds(now), TimeZone());
    DateRecord const date{.day = static_cast<unsigned char>(fields.tm_mday),
                          .month = static_cast<Month>(fields.tm_mon + 1),
                          .year = static_cast<std::uint32_t>(fields.tm_year) + 1900};
    TimeOfDay const time{.hour = static_cast<unsigned char>(fields.tm_hour),
                         .minute = static_cast<unsigned char>(fields.tm_min),
                         .second = static_cast<unsigned char>(fields.tm_sec)};
    return TimeObject(date, time, TimeZone(static_cast<int>(fields.tm_gmtoff)));
}

TimeZone TimeZone::Local() {
    return ReadLocalClock().Zone();
}

Instant::Instant(TimeObject const& time)
    : microseconds_(
          SaturatingMultiply(time.SecondsSinceYear0() - TimeObject::kSecondsBefore1970, TimeInterval::kSecond)) {}

Instant Instant::Now() {
    return Instant(ReadLocalClock());
}

namespace {

TimeInterval RealTimeClock() {
    std::timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return TimeInterval(now.tv_sec * TimeInterval::kSecond + now.tv_nsec / 1'000);
}

}  // namespace

TimeInterval TimeMark::Now() {
    static TimeInterval const first = RealTimeClock();
    return RealTimeClock() - first;
}
