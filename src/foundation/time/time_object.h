#pragma once

#include <compare>

#include "foundation/time/date_record.h"
#include "foundation/time/instant.h"

// A reading of a 24-hour clock, to the second. It knows no date: arithmetic wraps within the day and never carries.
//
// The fields may hold a reading that no clock shows; Valid() tells.
struct TimeOfDay {
    static constexpr int kSecondsInDay = 86'400;

    unsigned char hour = 0;
    unsigned char minute = 0;
    unsigned char second = 0;

    // Seconds since midnight.
    int SecondOfDay() const { return hour * 3'600 + minute * 60 + second; }
    // Any number of seconds, whole days cast off. A negative one counts back from midnight.
    void SetSecondOfDay(long long seconds);
    bool Valid() const { return hour <= 23 && minute < 60 && second < 60; }

    TimeOfDay& operator+=(long long seconds);
    TimeOfDay& operator-=(long long seconds);

    auto operator<=>(TimeOfDay const&) const = default;
};

// Seconds from `right` to `left`, negative when `right` is the later.
inline int operator-(TimeOfDay left, TimeOfDay right) {
    return left.SecondOfDay() - right.SecondOfDay();
}

// An offset from UTC, positive east of Greenwich.
class TimeZone {
  public:
    // UTC itself.
    constexpr TimeZone() = default;
    constexpr explicit TimeZone(int seconds) : seconds_(seconds), microseconds_(seconds * TimeInterval::kSecond) {}

    // The offset of local time that is in force now; a change of the system's zone is noticed. It is used for other times
    // of the year as well.
    static TimeZone Local();

    constexpr int Seconds() const { return seconds_; }
    constexpr long long Microseconds() const { return microseconds_; }

    constexpr bool operator==(TimeZone const&) const = default;

  private:
    int seconds_ = 0;
    long long microseconds_ = 0;
};

// A calendar date and time of day as a clock in a given zone shows them, to the second.
//
// Objects are compared and subtracted as points in time, whatever their zones. All counting is in seconds of 64 bits
// and defined for every value, one that is not Valid() included. Arithmetic stays within 0000-01-01 00:00:00 and
// 4294967295-12-31 23:59:59 of the object's zone: a result outside is one of these two.
class TimeObject {
  public:
    static constexpr long long kSecondsBefore1970 = 719'528LL * TimeOfDay::kSecondsInDay;

    // 1970-01-01 00:00:00 +00:00.
    TimeObject() = default;
    TimeObject(DateRecord date, TimeOfDay time, TimeZone zone) : date_(date), time_(time), zone_(zone) {}
    // What a clock in `zone` shows at the instant. The part of a second is cut off toward 1970.
    TimeObject(Instant instant, TimeZone zone);

    DateRecord const& Date() const { return date_; }
    TimeOfDay const& Time() const { return time_; }
    TimeZone Zone() const { return zone_; }

    // The same point in time on a clock of another zone.
    void SetTimeZone(TimeZone zone);

    bool Valid() const { return date_.Valid() && time_.Valid(); }

    TimeObject& operator+=(long long seconds);

    // Seconds of UTC since 0000-01-01 00:00:00 UTC.
    long long SecondsSinceYear0() const;

  private:
    // Sets the clock's reading, counted in its own zone.
    void SetWallSeconds(long long seconds);
    long long WallSeconds() const;

    DateRecord date_;
    TimeOfDay time_;
    TimeZone zone_;
};

inline bool operator==(TimeObject const& left, TimeObject const& right) {
    return left.SecondsSinceYear0() == right.SecondsSinceYear0();
}
inline std::weak_ordering operator<=>(TimeObject const& left, TimeObject const& right) {
    return left.SecondsSinceYear0() <=> right.SecondsSinceYear0();
}

TimeObject operator+(TimeObject time, long long seconds);
TimeObject operator-(TimeObject time, long long seconds);
// Seconds from `right` to `left`.
long long operator-(TimeObject const& left, TimeObject const& right);

// The current time on a clock in the local zone, and on one that shows UTC.
TimeObject NowLocalTime();
TimeObject NowGMT();
// The current date in a zone.
DateRecord Today(TimeZone zone);
