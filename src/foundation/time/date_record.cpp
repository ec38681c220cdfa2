#include "foundation/time/date_record.h"

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>

#include "foundation/time/instant.h"

namespace {

constexpr auto kLastYear = std::numeric_limits<std::uint32_t>::max();
constexpr std::array kDaysBeforeMonth = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
constexpr std::array kDaysInMonth = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Where the month stands in the tables.
std::size_t MonthIndex(Month month) {
    return std::clamp(static_cast<std::size_t>(month), std::size_t{1}, std::size_t{12}) - 1;
}

int DaysBeforeMonth(std::size_t index, bool leap) {
    return kDaysBeforeMonth[index] + (leap && index > 1);
}

int DaysInMonth(std::size_t index, bool leap) {
    return kDaysInMonth[index] + (leap && index == 1);
}

}  // namespace

bool DateRecord::IsLeapYear(std::uint32_t year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DateRecord::DaysIn(std::uint32_t year) {
    return IsLeapYear(year) ? 366 : 365;
}

long long DateRecord::DaysBefore(std::uint32_t year) {
    if (year == 0) return 0;
    long long const last = static_cast<long long>(year) - 1;
    return 365LL * year + last / 4 - last / 100 + last / 400 + 1;
}

std::uint32_t DateRecord::YearOf(long long absolute_day) {
    if (absolute_day <= 0) return 0;
    if (absolute_day >= DaysBefore(kLastYear)) return kLastYear;
    // Without the leap days of the centuries, four years are 1461 days throughout.
    long long const without400 = absolute_day - 1 - (absolute_day - 1) / 146'097;
    long long const julian = without400 + without400 / 36'524;
    return static_cast<std::uint32_t>((julian - julian / 1'461) / 365);
}

int DateRecord::DayOfYear() const {
    return DaysBeforeMonth(MonthIndex(month), IsLeapYear(year)) + day - 1;
}

void DateRecord::SetDayOfYear(int days) {
    bool const leap = IsLeapYear(year);
    days = std::clamp(days, 0, DaysIn(year) - 1);
    int const scanned = leap && days >= 59 ? days - 1 : days;
    auto const next = std::ranges::upper_bound(kDaysBeforeMonth, scanned);
    auto const index = static_cast<std::size_t>(next - kDaysBeforeMonth.begin()) - 1;
    month = static_cast<::Month>(index + 1);
    day = static_cast<unsigned char>(days + 1 - DaysBeforeMonth(index, leap));
}

long long DateRecord::AbsoluteDay() const {
    return DaysBefore(year) + DayOfYear();
}

void DateRecord::SetAbsoluteDay(long long days) {
    days = std::clamp(days, 0LL, DaysBefore(kLastYear) + DaysIn(kLastYear) - 1);
    year = YearOf(days);
    SetDayOfYear(static_cast<int>(days - DaysBefore(year)));
}

::DayOfWeek DateRecord::DayOfWeek() const {
    return static_cast<::DayOfWeek>((AbsoluteDay() + 6) % 7);
}

bool DateRecord::Valid() const {
    if (month < Month::January || month > Month::December) return false;
    return day >= 1 && day <= DaysInMonth(MonthIndex(month), IsLeapYear(year));
}

DateRecord& DateRecord::operator+=(long long days) {
    SetAbsoluteDay(SaturatingAdd(AbsoluteDay(), days));
    return *this;
}

DateRecord& DateRecord::operator-=(long long days) {
    SetAbsoluteDay(SaturatingSubtract(AbsoluteDay(), days));
    return *this;
}

std::strong_ordering operator<=>(DateRecord const& left, DateRecord const& right) {
    return std::tie(left.year, left.month, left.day) <=> std::tie(right.year, right.month, right.day);
}

long long operator-(DateRecord const& left, DateRecord const& right) {
    return left.AbsoluteDay() - right.AbsoluteDay();
}
