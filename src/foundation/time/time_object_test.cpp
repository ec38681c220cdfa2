#include "foundation/time/time_object.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <random>

#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();

std::string Written(TimeObject const& time) {
    return std::string(TimeToText(time).AsStringView());
}

TEST(TimeObject, AgreesWithTheSystemsCalendarAndComesBack) {
    std::mt19937_64 random(9);
    std::uniform_int_distribution<long long> anySecondOfTheYears1000To9999(-30'610'224'000, 253'402'300'799);
    std::uniform_int_distribution anyMinute(-99 * 60, 99 * 60);
    for (int i = 0; i < 20'000; ++i) {
        std::time_t const second = anySecondOfTheYears1000To9999(random);
        Instant const instant(second * TimeInterval::kSecond);
        std::tm fields{};
        char text[64];
        std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S +0000", gmtime_r(&second, &fields));
        ASSERT_EQ(Written(TimeObject(instant, TimeZone())), text);
        ASSERT_EQ(Instant(TextToTime(text)), instant);
        TimeObject const zoned(instant, TimeZone(anyMinute(random) * 60));
        ASSERT_EQ(Written(TextToTime(TimeToText(zoned))), Written(zoned));
        ASSERT_EQ(TextToTime(TimeToText(zoned)), TextToTime(text));
    }
}

TEST(TimeObject, CountsAcrossDaysAndZones) {
    EXPECT_EQ(Written(TimeObject(Instant(-1), TimeZone())), "Thu, 01 Jan 1970 00:00:00 +0000");
    EXPECT_EQ(Written(TimeObject(Instant(-1'000'001), TimeZone())), "Wed, 31 Dec 1969 23:59:59 +0000");
    EXPECT_EQ(Written(TimeObject() + -1), "Wed, 31 Dec 1969 23:59:59 +0000");
    auto const evening = TextToTime("Wed, 28 Feb 2024 20:00:00 -0500");
    EXPECT_EQ(Written(evening + 14'400 + 86'400), "Fri, 01 Mar 2024 00:00:00 -0500");
    EXPECT_EQ(Written(evening - 28 * 86'400), "Wed, 31 Jan 2024 20:00:00 -0500");
    auto moved = evening;
    moved.SetTimeZone(TimeZone(19'800));
    EXPECT_EQ(Written(moved), "Thu, 29 Feb 2024 06:30:00 +0530");
    EXPECT_EQ(moved, evening);
    TimeObject const later(moved.Date(), moved.Time(), TimeZone(-18'000));
    EXPECT_LT(evening, later);
    EXPECT_EQ(later - moved, 37'800);
}

TEST(TimeObject, StopsAtTheEndsOfTheCalendarAndOfTheInstants) {
    EXPECT_EQ(Written(TimeObject(Instant(kFirst), TimeZone(60))), "Sat, 01 Jan 0000 00:00:00 +0001");
    EXPECT_EQ(Written(TimeObject(Instant(kLast), TimeZone())), "Sun, 10 Jan 294247 04:00:54 +0000");
    auto const last = TimeObject() - kFirst;
    EXPECT_EQ(Written(TimeObject() + kFirst), "Sat, 01 Jan 0000 00:00:00 +0000");
    EXPECT_EQ(Written(last), "Sat, 31 Dec 4294967295 23:59:59 +0000");
    for (int const seconds : {std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max()})
        EXPECT_EQ(Instant(TimeObject(last.Date(), last.Time(), TimeZone(seconds))), Instant(kLast));
    EXPECT_EQ(Instant(TimeObject({1, Month::January, 0}, {}, {})), Instant(-62'167'219'200'000'000));
    EXPECT_FALSE(TimeObject({30, Month::February, 2024}, {}, {}).Valid());
    EXPECT_FALSE(TimeObject({}, {24, 0, 0}, {}).Valid());
}

TEST(TimeOfDay, WrapsWithinItsDay) {
    for (auto const& [added, expected] : {std::pair{2LL, 1}, {-86'399, 0}, {86'400, 86'399}, {kLast, 55'806}}) {
        TimeOfDay later{23, 59, 59};
        TimeOfDay earlier{23, 59, 59};
        EXPECT_EQ((later += added).SecondOfDay(), expected);
        EXPECT_EQ((earlier -= -added).SecondOfDay(), expected);
    }
    TimeOfDay time;
    time.SetSecondOfDay(-1);
    EXPECT_EQ(time - TimeOfDay{}, 86'399);
    EXPECT_FALSE((TimeOfDay{23, 60, 0}).Valid() || (TimeOfDay{23, 59, 60}).Valid());
}

}  // namespace
