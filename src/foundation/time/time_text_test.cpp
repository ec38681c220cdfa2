#include <gtest/gtest.h>

#include <string>

#include "foundation/time/text_to_time.h"
#include "foundation/time/time_to_text.h"

namespace {

std::string const kGood = "Sun, 15 Nov 2026 02:16:00 +0000";

std::string Written(TimeObject const& time) {
    return std::string(TimeToText(time).AsStringView());
}

TimeObject Read(std::string_view text) {
    return TextToTime(UStringRef<UTF8>(text));
}

TEST(TimeText, IsWrittenToTheByte) {
    DateRecord const date{5, Month::January, 2014};
    EXPECT_EQ(Written({date, {23, 59, 59}, TimeZone(19'800)}), "Sun, 05 Jan 2014 23:59:59 +0530");
    EXPECT_EQ(Written({date, {7, 5, 9}, TimeZone(-12'600)}), "Sun, 05 Jan 2014 07:05:09 -0330");
    EXPECT_EQ(Written({date, {7, 5, 9}, TimeZone(-59)}), "Sun, 05 Jan 2014 07:05:09 -0000");
    EXPECT_EQ(Written({{29, Month::February, 0}, {}, TimeZone(59)}), "Tue, 29 Feb 0000 00:00:00 +0000");
    EXPECT_EQ(Written({{255, static_cast<Month>(13), 4'294'967'295}, {255, 255, 255}, TimeZone()}),
              "Sat, 255 ??? 4294967295 255:255:255 +0000");
}

TEST(TimeText, IsReadWithBlanksAroundAndAnyWeekday) {
    for (auto const* text : {" Sun, 15 Nov 2026 02:16:00 +0000", "\r\n\tSat, 15 Nov 2026 02:16:00 -0000 \n",
                             "Wed, 15 Nov 2026 03:46:00 +0130"})
        EXPECT_EQ(Read(text), Read(kGood)) << text;
    for (std::string const text : {"Sat, 31 Dec 4294967295 23:59:59 -9959", "Tue, 29 Feb 2000 00:00:00 +0000"})
        EXPECT_EQ(Written(Read(text)), text);
}

TEST(TimeText, AnythingElseThrows) {
    for (std::size_t i = 0; i < kGood.size(); ++i) {
        EXPECT_THROW(Read(kGood.substr(0, i)), InvalidTimeText) << i;
        EXPECT_THROW(Read(std::string(kGood).replace(i, 1, "/")), InvalidTimeText) << i;
    }
    for (std::string const date : {"SUN, 15 Nov 2026", "Sun, 15 nov 2026", "Sun, 15 Nov 02026",
                                   "Sun, 15 Nov 4294967296", "Sun, 29 Feb 1900", "Sun, 00 Nov 2026"})
        EXPECT_THROW(Read(date + " 02:16:00 +0000"), InvalidTimeText) << date;
    for (auto const* time :
         {" 02:16:00 +0060", " 24:00:00 +0000", " 02:60:00 +0000", " 02:16:60 +0000", " 02:16:00 +0000 x"})
        EXPECT_THROW(Read(kGood.substr(0, 16) + time), InvalidTimeText) << time;
}

}  // namespace
