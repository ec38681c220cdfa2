#include "foundation/time/instant.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "foundation/time/scoped_local_zone.h"
#include "foundation/time/time_mark.h"
#include "foundation/time/time_object.h"

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

TEST(Instant, NowIsTheClockInWholeSecondsWhateverTheZone) {
    for (auto const* zone : {"UTC0", "EAST-14", "WEST+12", "HALF-5:30:15"}) {
        ScopedLocalZone const local(zone);
        auto const before = std::time(nullptr);
        auto const now = Instant::Now();
        EXPECT_GE(now, Instant() + TimeInterval::Seconds(before));
        EXPECT_LE(now, Instant() + TimeInterval::Seconds(std::time(nullptr)));
        EXPECT_EQ(now.Microseconds() % TimeInterval::kSecond, 0);
    }
}

TEST(TimeZone, LocalFollowsAChangeOfTheZone) {
    ScopedLocalZone const first("EAST-5:30");
    EXPECT_EQ(TimeZone::Local(), TimeZone(19'800));
    ScopedLocalZone const second("WEST+8");
    EXPECT_EQ(TimeZone::Local(), TimeZone(-28'800));
    EXPECT_EQ(TimeZone::Local().Microseconds(), -28'800'000'000);
    EXPECT_EQ(NowLocalTime().Zone(), TimeZone(-28'800));
    EXPECT_NEAR(static_cast<double>(NowGMT() - NowLocalTime()), 0, 60);
    EXPECT_NEAR(static_cast<double>(Today(TimeZone(86'400)) - Today(TimeZone(-86'400))), 2, 1);
}

TEST(TimeMark, CountsFromItsFirstCall) {
    auto const first = TimeMark::Now();
    EXPECT_GE(first, TimeInterval());
    while (TimeMark::Now() - first < TimeInterval(2)) continue;
}

}  // namespace
