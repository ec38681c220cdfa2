#include "foundation/time/time_object.h"

#include <algorithm>
#include <ctime>
#include <limits>

void TimeOfDay::SetSecondOfDay(long long seconds) {
    auto const rest = static_cast<int>(seconds % kSecondsInDay);
    int const wrapped = rest < 0 ? rest + kSecondsInDay : rest;
    hour = static_cast<unsigned char>(wrapped / 3'600);
    minute = static_cast<unsigned char>(wrapped / 60 % 60);
    second = static_cast<unsigned char>(wrapped % 60);
}

TimeOfDay& TimeOfDay::operator+=(long long seconds) {
    SetSecondOfDay(SecondOfDay() + seconds % kSecondsInDay);
    return *this;
}

TimeOfDay& TimeOfDay::operator-=(long long seconds) {
    SetSecondOfDay(SecondOfDay() - seconds % kSecondsInDay);
    return *this;
}

TimeZone TimeZone::Local() {
    // localtime_r alone may go on using the zone of its first call.
    tzset();
    std::time_t const now = std::time(nullptr);
    std::tm fields{};
    return localtime_r(&now, &fields) ? TimeZone(static_cast<int>(fields.tm_gmtoff)) : TimeZone();
}

TimeObject::TimeObject(Instant instant, TimeZone zone) : zone_(zone) {
    SetWallSeconds(kSecondsBefore1970 + instant.Microseconds() / TimeInterval::kSecond + zone.Seconds());
}

void TimeObject::SetTimeZone(TimeZone zone) {
    SetWallSeconds(SecondsSinceYear0() + zone.Seconds());
    zone_ = zone;
}

TimeObject& TimeObject::operator+=(long long seconds) {
    SetWallSeconds(SaturatingAdd(WallSeconds(), seconds));
    return *this;
}

long long TimeObject::SecondsSinceYear0() const {
    return WallSeconds() - zone_.Seconds();
}

void TimeObject::SetWallSeconds(long long seconds) {
    constexpr auto kLastYear = std::numeric_limits<std::uint32_t>::max();
    long long const end =
        (DateRecord::DaysBefore(kLastYear) + DateRecord::DaysIn(kLastYear)) * TimeOfDay::kSecondsInDay;
    seconds = std::clamp(seconds, 0LL, end - 1);
    date_.SetAbsoluteDay(seconds / TimeOfDay::kSecondsInDay);
    time_.SetSecondOfDay(seconds);
}

long long TimeObject::WallSeconds() const {
    return date_.AbsoluteDay() * TimeOfDay::kSecondsInDay + time_.SecondOfDay();
}

TimeObject operator+(TimeObject time, long long seconds) {
    time += seconds;
    return time;
}

TimeObject operator-(TimeObject time, long long seconds) {
    time += SaturatingSubtract(0, seconds);
    return time;
}

long long operator-(TimeObject const& left, TimeObject const& right) {
    return left.SecondsSinceYear0() - right.SecondsSinceYear0();
}

TimeObject NowLocalTime() {
    return TimeObject(Instant::Now(), TimeZone::Local());
}

TimeObject NowGMT() {
    return TimeObject(Instant::Now(), TimeZone());
}

DateRecord Today(TimeZone zone) {
    return TimeObject(Instant::Now(), zone).Date();
}
