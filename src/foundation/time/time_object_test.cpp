#include "foundation/time/time_object.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <random>

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();
constexpr auto kLastYear = std::numeric_limits<std::uint32_t>::max();

// A number written YYYYMMDD.hhmmss, the two halves as integers.
TimeObject Time(long long date, int time, int zone = 0) {
    auto const byte = [](long long value) { return static_cast<unsigned char>(value % 100); };
    return {{byte(date), static_cast<Month>(byte(date / 100)), static_cast<std::uint32_t>(date / 10'000)},
            {byte(time / 10'000), byte(time / 100), byte(time)},
            TimeZone(zone)};
}

void ExpectReads(TimeObject const& actual, TimeObject const& expected) {
    EXPECT_EQ(actual.Date(), expected.Date()) << actual.Date().year << ' ' << int(actual.Date().day);
    EXPECT_EQ(actual.Time(), expected.Time()) << actual.Time().SecondOfDay();
    EXPECT_EQ(actual.Zone(), expected.Zone());
}

TEST(TimeObject, AgreesWithTheSystemsCalendarAndComesBack) {
    std::mt19937_64 random(9);
    std::uniform_int_distribution<long long> anySecond(-62'167'132'800, 253'402'300'799);
    std::uniform_int_distribution anyZone(-50'400, 50'400);
    for (int i = 0; i < 20'000; ++i) {
        std::time_t const second = anySecond(random);
        Instant const instant(second * TimeInterval::kSecond);
        TimeObject const utc(instant, TimeZone());
        TimeObject const zoned(instant, TimeZone(anyZone(random)));
        std::tm fields{};
        gmtime_r(&second, &fields);
        ExpectReads(utc, Time(fields.tm_year * 10'000LL + 19'000'000 + fields.tm_mon * 100 + 100 + fields.tm_mday,
                              fields.tm_hour * 10'000 + fields.tm_min * 100 + fields.tm_sec));
        ASSERT_EQ(static_cast<int>(utc.Date().DayOfWeek()), fields.tm_wday);
        ASSERT_EQ(utc.Date().DayOfYear(), fields.tm_yday);
        ASSERT_EQ(Instant(zoned), instant);
        ASSERT_EQ(zoned, utc);
        ASSERT_TRUE(zoned.Valid());
    }
}

TEST(TimeObject, CutsPartsOfASecondTowardTheEpoch) {
    ExpectReads(TimeObject(), Time(19700101, 0));
    ExpectReads(TimeObject(Instant(-1), TimeZone()), Time(19700101, 0));
    ExpectReads(TimeObject(Instant(1'999'999), TimeZone()), Time(19700101, 1));
    ExpectReads(TimeObject(Instant(-1'000'001), TimeZone()), Time(19691231, 235959));
}

TEST(TimeObject, CountsAcrossDaysAndZones) {
    ExpectReads(TimeObject() + -1, Time(19691231, 235959));
    ExpectReads(Time(20240228, 235959) + 86'401, Time(20240301, 0));
    ExpectReads(Time(20230101, 0) - 86'400, Time(20221231, 0));
    auto moved = Time(20231231, 200000, -18'000);
    moved.SetTimeZone(TimeZone(19'800));
    ExpectReads(moved, Time(20240101, 63000, 19'800));
    EXPECT_EQ(moved, Time(20231231, 200000, -18'000));
    EXPECT_LT(Time(20240101, 63000, 19'800), Time(20240101, 63000));
    EXPECT_EQ(Time(20240101, 63000) - Time(20240101, 63000, 19'800), 19'800);
}

TEST(TimeObject, StopsAtTheEndsOfTheCalendarAndOfTheInstants) {
    ExpectReads(TimeObject(Instant(kFirst), TimeZone(60)), Time(101, 0, 60));
    ExpectReads(TimeObject(Instant(kLast), TimeZone()), Time(2942470110, 40054));
    ExpectReads(Time(20240101, 0) + kFirst, Time(101, 0));
    ExpectReads(Time(20240101, 0) - kLast, Time(101, 0));
    ExpectReads(Time(20240101, 0) - kFirst, Time(kLastYear * 10'000LL + 1231, 235959));
    EXPECT_EQ(Instant(Time(kLastYear * 10'000LL + 1231, 235959, std::numeric_limits<int>::min())), Instant(kLast));
    EXPECT_EQ(Instant(Time(kLastYear * 10'000LL, 0, std::numeric_limits<int>::max())), Instant(kLast));
    EXPECT_EQ(Instant(Time(101, 0)), Instant(-62'167'219'200'000'000));
    EXPECT_FALSE(Time(20230230, 0).Valid());
    EXPECT_FALSE(Time(20230228, 240000).Valid());
}

TEST(TimeOfDay, WrapsWithinItsDay) {
    struct {
        long long added;
        int expected;
    } const table[] = {{2, 1}, {-86'399, 0}, {86'400, 86'399}, {kLast, (86'399 + kLast % 86'400) % 86'400}};
    for (auto const& row : table) {
        TimeOfDay added{23, 59, 59};
        TimeOfDay subtracted{23, 59, 59};
        EXPECT_EQ((added += row.added).SecondOfDay(), row.expected);
        EXPECT_EQ((subtracted -= -row.added).SecondOfDay(), row.expected);
    }
    TimeOfDay time;
    time.SetSecondOfDay(-1);
    EXPECT_EQ(time, (TimeOfDay{23, 59, 59}));
    EXPECT_EQ(TimeOfDay{} - time, -86'399);
    EXPECT_FALSE((TimeOfDay{23, 60, 0}).Valid());
    EXPECT_FALSE((TimeOfDay{23, 59, 60}).Valid());
}

}  // namespace
