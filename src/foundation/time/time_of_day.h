#pragma once

#include <compare>

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
