#include "messages/xml_date_time.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "foundation/time/scoped_local_zone.h"

namespace {

std::string Written(long long microseconds) {
    return std::string(InstantToXMLDateTime(Instant(microseconds)).AsStringView());
}

long long Read(std::string_view text) {
    return XMLDateTimeToInstant(UStringRef<UTF8>(text)).Microseconds();
}

TEST(XMLDate, IsWrittenAndReadBackAndAnythingElseThrows) {
    for (auto const* text : {"0000-01-01", "0999-12-31", "2024-02-29", "12345-06-07", "4294967295-12-31"})
        EXPECT_EQ(DateRecordToXMLDate(XMLDateToDateRecord(text)).AsStringView(), text);
    EXPECT_EQ(XMLDateToDateRecord("2026-11-15"), (DateRecord{15, Month::November, 2026}));
    EXPECT_EQ(DateRecordToXMLDate({255, static_cast<Month>(255), 4'294'967'295}).AsStringView(), "4294967295-255-255");
    for (auto const* text : {"", "-", "2026", "2026-11", "2026-11-1", "2026-11-15 ", " 2026-11-15", "2026-11-15Z",
                             "026-11-15", "02026-11-15", "+2026-11-15", "--2026-11-15", "2026-13-01", "2026-00-01",
                             "2026-11-31", "2026-11-00", "2026/11/15", "4294967296-01-01", "-2026-02-30"})
        EXPECT_THROW(XMLDateToDateRecord(text), InvalidDateTimeString) << text;
    EXPECT_THROW(XMLDateToDateRecord("-0001-01-01"), InvalidDateTimeNegativeYear);
}

TEST(XMLDateTime, IsWrittenInTheLocalZoneAndReadBack) {
    for (auto const& [zone, text] :
         std::initializer_list<std::pair<char const*, char const*>>{{"UTC0", "2026-11-15T02:16:00Z"},
                                                                    {"EAST-5:30", "2026-11-15T07:46:00+05:30"},
                                                                    {"WEST+3:30", "2026-11-14T22:46:00-03:30"},
                                                                    {"ODD-0:19:32", "2026-11-15T02:35:00+00:19"},
                                                                    {"ODD+0:00:59", "2026-11-15T02:16:00Z"},
                                                                    {"FAR-20", "2026-11-15T16:16:00+14:00"}}) {
        ScopedLocalZone const local(zone);
        EXPECT_EQ(Written(1'794'708'960'000'000), text);
        EXPECT_EQ(Read(text), 1'794'708'960'000'000);
    }
    EXPECT_EQ(Written(LLONG_MIN), "0000-01-01T00:00:00Z");
    EXPECT_EQ(Written(LLONG_MAX), "294247-01-10T04:00:54Z");
    EXPECT_EQ(TimeOfDayToXMLTime({7, 5, 9}).AsStringView(), "07:05:09");
    EXPECT_EQ(TimeZoneToText(TimeZone(INT_MIN)).AsStringView(), "-596523:14");
    EXPECT_EQ(TimeZoneToText(TimeZone(-59)).AsStringView(), "Z");
}

TEST(XMLDateTime, IsReadInOtherSpellingsAndAnythingElseThrows) {
    ScopedLocalZone const local("WEST+1");
    EXPECT_EQ(Read("1970-01-01T00:00:00"), TimeInterval::kHour);
    EXPECT_EQ(Read("1970-01-01T00:00:00.5Z"), 500'000);
    EXPECT_EQ(Read("1969-12-31T23:59:59.999999999Z"), -1);
    for (auto const* text : {"1969-12-31T24:00:00.0Z", "1970-01-01T14:00:00+14:00", "1970-01-01T00:00:00-00:00"})
        EXPECT_EQ(Read(text), 0) << text;
    for (auto const* text : {"294247-01-10T04:00:54.775807Z", "294247-01-10T04:00:55Z", "4294967295-12-31T23:59:59Z"})
        EXPECT_EQ(Read(text), LLONG_MAX) << text;
    std::string const day = "1970-01-01";
    for (auto const* time : {"", "T", " 00:00:00Z", "t00:00:00Z", "T00:00Z", "T00:00:00.Z", "T00:00:00z", "T00:00:00ZZ",
                             "T00:00:00+0000", "T00:00:00+00", "T00:00:00+14:01", "T00:00:00+00:60", "T24:00:01Z",
                             "T24:00:00.1Z", "T25:00:00Z", "T00:60:00Z", "T00:00:60Z", "T00:00:00Z "}) {
        EXPECT_THROW(Read(day + time), InvalidDateTimeString) << time;
        EXPECT_THROW(Read("-" + day + time), InvalidDateTimeString) << time;
    }
    EXPECT_THROW(Read("-" + day + "T00:00:00Z"), InvalidDateTimeNegativeYear);
}

}  // namespace
