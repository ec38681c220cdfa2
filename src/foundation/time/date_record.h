#pragma once

#include <compare>
#include <cstdint>

enum class Month : unsigned char {
    January = 1,
    February,
    March,
    April,
    May,
    June,
    July,
    August,
    September,
    October,
    November,
    December
};

enum class DayOfWeek : unsigned char { Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

// A day of the proleptic Gregorian calendar, which has a leap year 0.
//
// An absolute day counts the days since 0000-01-01. The fields may hold a day that does not exist; Valid() tells.
// Every operation is defined for such a day too: a month before January counts as January, one after December as
// December, and the day of the month is counted on from the month's first. Results never leave
// 0000-01-01 to 4294967295-12-31, they stop there.
struct DateRecord {
    // From 1.
    unsigned char day = 1;
    ::Month month = Month::January;
    std::uint32_t year = 1970;

    static bool IsLeapYear(std::uint32_t year);
    // 365 or 366.
    static int DaysIn(std::uint32_t year);
    // The absolute day of the year's January 1.
    static long long DaysBefore(std::uint32_t year);
    // The year in which an absolute day lies.
    static std::uint32_t YearOf(long long absolute_day);

    // Days since January 1 of the year.
    int DayOfYear() const;
    // Moves within the year. A number outside it gives the year's first or last day.
    void SetDayOfYear(int days);
    long long AbsoluteDay() const;
    void SetAbsoluteDay(long long days);
    ::DayOfWeek DayOfWeek() const;
    bool Valid() const;

    DateRecord& operator+=(long long days);
    DateRecord& operator-=(long long days);

    bool operator==(DateRecord const&) const = default;
};

// In the order of the calendar.
std::strong_ordering operator<=>(DateRecord const& left, DateRecord const& right);
// Days from `right` to `left`.
long long operator-(DateRecord const& left, DateRecord const& right);
