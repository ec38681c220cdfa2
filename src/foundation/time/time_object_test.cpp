#include "foundation/time/time_object.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"
#include "tests/support/scoped_local_zone.h"

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();

static_assert(Instant(kLast) + TimeInterval::Seconds(1) == Instant(kLast));
static_assert(Instant(1) - TimeInterval(kFirst) == Instant(kLast));
static_assert(TimeInterval::Minutes(kLast / 3) == TimeInterval(kLast));
static_assert(SaturatingMultiply(kFirst, -1) == kLast);

std::string Written(TimeObject const& time) {
    return std::string(TimeToText(time).AsStringView());
}

TEST(TimeObject, AgreesWithTheSystemsCalendarAndComesBack) {
    // Of the years 1000 to 9999.
    for (std::time_t second = -30'610'224'000; second <= 253'402'300'799; second += 14'000'029) {
        Instant const instant(second * TimeInterval::kSecond);
        std::tm fields{};
        char text[64];
        std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S +0000", gmtime_r(&second, &fields));
        ASSERT_EQ(Written(TimeObject(instant, TimeZone())), text);
        ASSERT_EQ(Instant(TextToTime(text)), instant);
    }
}

TEST(DateRecord, KnowsEveryYearsFirstAndLastDay) {
    for (long long year = 0; year < std::numeric_limits<std::uint32_t>::max(); year += 1 + year / 50) {
        auto const value = static_cast<std::uint32_t>(year);
        DateRecord day;
        day.SetAbsoluteDay(DateRecord::DaysBefore(value));
        ASSERT_EQ(day, (DateRecord{1, Month::January, value}));
        day += DateRecord::DaysIn(value) - 1;
        ASSERT_EQ(day, (DateRecord{31, Month::December, value}));
        ASSERT_EQ((day += 1), (DateRecord{1, Month::January, value + 1}));
    }
}

TEST(TimeObject, CountsAcrossDaysAndZones) {
    EXPECT_EQ(Written(TimeObject(Instant(-1), TimeZone(-3'600))), "Wed, 31 Dec 1969 23:00:00 -0100");
    auto const evening = TextToTime("Wed, 28 Feb 2024 20:00:00 -0500");
    EXPECT_EQ(Written(evening + 14'400 + 86'400), "Fri, 01 Mar 2024 00:00:00 -0500");
    EXPECT_EQ(Written(evening - 28 * 86'400), "Wed, 31 Jan 2024 20:00:00 -0500");
    auto moved = evening;
    moved.SetTimeZone(TimeZone(19'800));
    EXPECT_EQ(Written(moved), "Thu, 29 Feb 2024 06:30:00 +0530");
    EXPECT_TRUE(moved == evening && evening < moved + 1);
    EXPECT_EQ(moved + 10 - evening, 10);
    TimeOfDay time{0, 0, 5};
    EXPECT_EQ((time -= 86'410), (TimeOfDay{23, 59, 55}));
    EXPECT_EQ((time += 86'400 + 3'610), (TimeOfDay{1, 0, 5}));
}

TEST(TimeObject, StopsAtTheEndsOfTheCalendarAndOfTheInstants) {
    EXPECT_EQ(Written(TimeObject(Instant(kLast), TimeZone())), "Sun, 10 Jan 294247 04:00:54 +0000");
    EXPECT_EQ(Written(TimeObject(Instant(kFirst), TimeZone(60))), "Sat, 01 Jan 0000 00:00:00 +0001");
    auto const last = TimeObject() - kFirst;
    EXPECT_EQ(Written(last), "Sat, 31 Dec 4294967295 23:59:59 +0000");
    for (int const seconds : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(Instant(TimeObject(last.Date(), last.Time(), TimeZone(seconds))), Instant(kLast));
}

TEST(Instant, NowIsTheClockInWholeSecondsAndTheZoneIsTheOneInForce) {
    auto const before = std::time(nullptr);
    auto const now = Instant::Now();
    EXPECT_GE(now, Instant() + TimeInterval::Seconds(before));
    EXPECT_LE(now, Instant() + TimeInterval::Seconds(std::time(nullptr)));
    for (auto [zone, east] : {std::pair("EAST-14", 50'400), {"WEST+8", -28'800}, {"ODD-5:30:15", 19'815}}) {
        ScopedLocalZone const local(zone);
        EXPECT_EQ(TimeZone::Local(), TimeZone(east));
    }
}

}  // namespace
