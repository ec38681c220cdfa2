#include "foundation/time/date_record.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace {

constexpr auto kLastYear = std::numeric_limits<std::uint32_t>::max();

DateRecord Date(std::uint32_t year, int month, int day) {
    return {static_cast<unsigned char>(day), static_cast<Month>(month), year};
}

DateRecord OnDay(long long absoluteDay) {
    DateRecord date;
    date.SetAbsoluteDay(absoluteDay);
    return date;
}

TEST(DateRecord, KnowsEveryYearsFirstAndLastDay) {
    long long next = 0;
    for (long long year = 0; year <= kLastYear; year += 1 + year / 50) {
        auto const value = static_cast<std::uint32_t>(year);
        long long const first = DateRecord::DaysBefore(value);
        ASSERT_TRUE(year > 50 || first == std::exchange(next, first + DateRecord::DaysIn(value)));
        ASSERT_EQ(OnDay(first), Date(value, 1, 1));
        ASSERT_EQ(OnDay(first + DateRecord::DaysIn(value) - 1), Date(value, 12, 31));
    }
    EXPECT_EQ(Date(2024, 3, 1) - Date(2024, 2, 28), 2);
    EXPECT_LT(Date(2024, 2, 29), Date(2024, 3, 1));
}

TEST(DateRecord, SaysWhichDaysExist) {
    for (auto const& date : {Date(2000, 2, 29), Date(0, 2, 29), Date(kLastYear, 12, 31)}) EXPECT_TRUE(date.Valid());
    for (auto const& date : {Date(1900, 2, 29), Date(2023, 0, 1), Date(2023, 13, 1)}) EXPECT_FALSE(date.Valid());
}

TEST(DateRecord, StaysInItsRange) {
    DateRecord date = Date(2023, 255, 255);
    EXPECT_EQ(date += std::numeric_limits<long long>::min(), Date(0, 1, 1));
    EXPECT_EQ(date -= 1, Date(0, 1, 1));
    EXPECT_EQ(date -= std::numeric_limits<long long>::min(), Date(kLastYear, 12, 31));
    EXPECT_EQ(date += std::numeric_limits<long long>::max(), Date(kLastYear, 12, 31));
    date.SetDayOfYear(-1);
    EXPECT_EQ(date, Date(kLastYear, 1, 1));
    date.SetDayOfYear(365);
    EXPECT_EQ(date, Date(kLastYear, 12, 31));
}

}  // namespace
