#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"

namespace {

std::string Written(TimeObject const& time) {
    return std::string(TimeToText(time).AsStringView());
}

TimeObject Read(std::string_view text) {
    return TextToTime(UStringRef<UTF8>(text));
}

constexpr char const* kGood = "Sun, 15 Nov 2026 02:16:00 +0000";

TEST(TimeText, IsWrittenToTheByte) {
    struct {
        TimeObject time;
        char const* text;
    } const table[] = {
        {{}, "Thu, 01 Jan 1970 00:00:00 +0000"},
        {{{15, Month::November, 2026}, {2, 16, 0}, TimeZone()}, kGood},
        {{{5, Month::January, 2014}, {23, 59, 59}, TimeZone(19'800)}, "Sun, 05 Jan 2014 23:59:59 +0530"},
        {{{5, Month::January, 2014}, {7, 5, 9}, TimeZone(-12'600)}, "Sun, 05 Jan 2014 07:05:09 -0330"},
        {{{5, Month::January, 2014}, {7, 5, 9}, TimeZone(-59)}, "Sun, 05 Jan 2014 07:05:09 -0000"},
        {{{29, Month::February, 0}, {0, 0, 0}, TimeZone(59)}, "Tue, 29 Feb 0000 00:00:00 +0000"},
        {TimeObject(Instant(std::numeric_limits<long long>::min()), TimeZone()), "Sat, 01 Jan 0000 00:00:00 +0000"},
        {{{255, static_cast<Month>(13), 4'294'967'295}, {255, 255, 255}, TimeZone(std::numeric_limits<int>::min())},
         "Sat, 255 ??? 4294967295 255:255:255 -59652314"},
        {{{0, static_cast<Month>(0), 0}, {0, 0, 0}, TimeZone()}, "Fri, 00 ??? 0000 00:00:00 +0000"},
    };
    for (auto const& row : table) EXPECT_EQ(Written(row.time), row.text);
    EXPECT_STREQ(DayOfWeekToText(static_cast<DayOfWeek>(7)), "???");
}

TEST(TimeText, IsReadBackAsItWasWritten) {
    std::mt19937_64 random(31);
    std::uniform_int_distribution<long long> anyMicrosecond(-60'000'000'000'000'000, 900'000'000'000'000'000);
    std::uniform_int_distribution anyMinute(-99 * 60, 99 * 60);
    for (int i = 0; i < 5'000; ++i) {
        TimeObject const time(Instant(anyMicrosecond(random)), TimeZone(anyMinute(random) * 60));
        auto const text = Written(time);
        auto const read = Read(text);
        ASSERT_EQ(read, time) << text;
        ASSERT_EQ(Written(read), text);
    }
}

TEST(TimeText, IsReadWithBlanksAroundAndAnyWeekday) {
    for (auto const* text : {" Sun, 15 Nov 2026 02:16:00 +0000", "\r\n\tSat, 15 Nov 2026 02:16:00 -0000 \n",
                             "Wed, 15 Nov 2026 03:46:00 +0130"})
        EXPECT_EQ(Read(text), Read(kGood)) << text;
    EXPECT_EQ(Read("Mon, 31 Dec 4294967295 23:59:59 -9959").Date().year, 4'294'967'295);
}

TEST(TimeText, AnythingElseThrows) {
    std::string const good = kGood;
    for (std::size_t i = 0; i < good.size(); ++i) {
        EXPECT_THROW(Read(good.substr(0, i)), InvalidTimeText) << i;
        EXPECT_THROW(Read(good.substr(i + 1)), InvalidTimeText) << i;
        for (char const wrong : {'x', ' ', '\0', '\xE9', '/'}) {
            auto text = good;
            text[i] = wrong;
            if (text == good) continue;
            EXPECT_THROW(Read(text), InvalidTimeText) << text;
        }
    }
    for (auto const* text : {"",
                             " \t",
                             "Sun, 15 Nov 2026 02:16:00 +00000",
                             "Sun, 15 Nov 2026 02:16:00 GMT",
                             "Sun, 15 Nov 2026 02:16:00 +0060",
                             "Sun, 15 Nov 2026 02:16:00",
                             "Sun, 15 nov 2026 02:16:00 +0000",
                             "SUN, 15 Nov 2026 02:16:00 +0000",
                             "Sun,  15 Nov 2026 02:16:00 +0000",
                             "Sun, 5 Nov 2026 02:16:00 +0000",
                             "Sun, 15 Nov 02026 02:16:00 +0000",
                             "Sun, 15 Nov 4294967296 02:16:00 +0000",
                             "Sun, 15 Nov 99999999999999999999 02:16:00 +0000",
                             "Sun, 29 Feb 2026 02:16:00 +0000",
                             "Sun, 00 Nov 2026 02:16:00 +0000",
                             "Sun, 15 Nov 2026 24:00:00 +0000",
                             "Sun, 15 Nov 2026 02:60:00 +0000",
                             "Sun, 15 Nov 2026 02:16:60 +0000",
                             "Sun, 15 Nov -026 02:16:00 +0000",
                             "2026-11-15T02:16:00Z"})
        EXPECT_THROW(Read(text), InvalidTimeText) << text;
    EXPECT_THROW(TextToTime({}), InvalidTimeText);
}

TEST(Buffer, ThrowsWhenTheTextDoesNotFit) {
    unsigned char room[31];
    for (std::size_t size = 0; size < sizeof room; ++size) {
        Buffer shorter(ArrayOf<unsigned char>(room).first(size));
        EXPECT_THROW(shorter << Read(kGood), DataOverflow) << size;
    }
    Buffer fitting(room);
    fitting << Read(kGood);
    EXPECT_EQ(fitting.Text().AsStringView(), kGood);
}

}  // namespace
