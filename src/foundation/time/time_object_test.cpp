#include "foundation/time/time_object.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <random>

#include "foundation/time/scoped_local_zone.h"
#include "foundation/time/text_to_time.h"
#include "foundation/time/time_mark.h"
#include "foundation/time/time_to_text.h"

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();

static_assert(Instant(kLast) + TimeInterval::Seconds(1) == Instant(kLast));
static_assert(Instant(kFirst) - TimeInterval(1) == Instant(kFirst));
static_assert(Instant(1) - TimeInterval(kFirst) == Instant(kLast));
static_assert(Instant(kLast) - Instant(-1) == TimeInterval(kLast));
static_assert(-TimeInterval(kFirst) == TimeInterval(kLast));
static_assert(TimeInterval::Minutes(kLast / 3) == TimeInterval(kLast));
static_assert(TimeInterval::Minutes(kFirst / 3) == TimeInterval(kFirst));
static_assert(SaturatingMultiply(kFirst, -1) == kLast);
static_assert(TimeZone(-28'800).Microseconds() == -28'800'000'000);

std::string Written(TimeObject const& time) {
    return std::string(TimeToText(time).AsStringView());
}

TEST(TimeObject, AgreesWithTheSystemsCalendarAndComesBack) {
    std::mt19937_64 random(9);
    std::uniform_int_distribution<long long> anySecondOfTheYears1000To9999(-30'610'224'000, 253'402'300'799);
    for (int i = 0; i < 20'000; ++i) {
        std::time_t const second = anySecondOfTheYears1000To9999(random);
        Instant const instant(second * TimeInterval::kSecond);
        std::tm fields{};
        char text[64];
        std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S +0000", gmtime_r(&second, &fields));
        ASSERT_EQ(Written(TimeObject(instant, TimeZone())), text);
        ASSERT_EQ(Instant(TextToTime(text)), instant);
    }
}

TEST(TimeObject, CountsAcrossDaysAndZones) {
    EXPECT_EQ(Written(TimeObject(Instant(-1), TimeZone())), "Thu, 01 Jan 1970 00:00:00 +0000");
    EXPECT_EQ(Written(TimeObject(Instant(-1'000'001), TimeZone())), "Wed, 31 Dec 1969 23:59:59 +0000");
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
    EXPECT_FALSE(TimeObject({30, Month::February, 2024}, {}, {}).Valid() || TimeObject({}, {24, 0, 0}, {}).Valid());
}

TEST(Instant, NowIsTheClockInWholeSecondsWhateverTheZone) {
    for (auto [zone, east] : {std::pair("EAST-14", 50'400), {"WEST+8", -28'800}, {"ODD-5:30:15", 19'815}}) {
        ScopedLocalZone const local(zone);
        auto const before = std::time(nullptr);
        auto const now = Instant::Now();
        EXPECT_GE(now, Instant() + TimeInterval::Seconds(before));
        EXPECT_LE(now, Instant() + TimeInterval::Seconds(std::time(nullptr)));
        EXPECT_EQ(now.Microseconds() % TimeInterval::kSecond, 0);
        EXPECT_EQ(NowLocalTime().Zone(), TimeZone(east));
        EXPECT_NEAR(static_cast<double>(NowGMT() - NowLocalTime()), 0, 60);
    }
    EXPECT_NEAR(static_cast<double>(Today(TimeZone(86'400)) - Today(TimeZone(-86'400))), 2, 1);
}

TEST(TimeMark, CountsFromItsFirstCall) {
    auto const first = TimeMark::Now();
    EXPECT_GE(first, TimeInterval());
    while (TimeMark::Now() - first < TimeInterval(2)) continue;
}

TEST(TimeOfDay, WrapsWithinItsDay) {
    for (auto const& [added, expected] :
         {std::pair{43'200LL, 0}, {-43'201, 86'399}, {86'400, 43'200}, {kLast, 12'607}}) {
        TimeOfDay later{12, 0, 0};
        TimeOfDay earlier{12, 0, 0};
        EXPECT_EQ((later += added).SecondOfDay(), expected);
        EXPECT_EQ((earlier -= -added) - TimeOfDay{}, expected);
    }
    EXPECT_FALSE((TimeOfDay{23, 60, 0}).Valid() || (TimeOfDay{23, 59, 60}).Valid());
}

}  // namespace
