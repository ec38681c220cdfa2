#include "messages/xml_date_time.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/support/scoped_local_zone.h"

namespace {

long long Read(std::string_view text) {
    return XMLDateTimeToInstant(UStringRef<UTF8>(text)).Microseconds();
}

TEST(XMLDate, IsWrittenAndReadBackAndAnythingElseThrows) {
    for (auto const* text : {"0000-01-01", "0999-12-31", "2024-02-29", "4294967295-12-31"})
        EXPECT_EQ(DateRecordToXMLDate(XMLDateToDateRecord(text)).AsStringView(), text);
    for (auto const* text : {"2026-11", "2026-11-1", "2026-11-15Z", "026-11-15", "02026-11-15", "2026-11-31"})
        EXPECT_THROW(XMLDateToDateRecord(text), InvalidDateTimeString) << text;
    EXPECT_THROW(XMLDateToDateRecord("-0001-01-01"), InvalidDateTimeNegativeYear);
}

TEST(XMLDateTime, IsWrittenInTheLocalZoneAndReadInOtherSpellingsToo) {
    using Case = std::pair<char const*, char const*>;
    for (auto const& [zone, text] : {Case{"UTC0", "2026-11-15T02:16:00Z"},
                                     {"WEST+3:30", "2026-11-14T22:46:00-03:30"},
                                     {"ODD-0:19:32", "2026-11-15T02:35:00+00:19"},
                                     {"FAR-20", "2026-11-15T16:16:00+14:00"}}) {
        ScopedLocalZone const local(zone);
        EXPECT_EQ(InstantToXMLDateTime(Instant(1'794'708'960'000'000)).AsStringView(), text);
        EXPECT_EQ(Read(text), 1'794'708'960'000'000);
    }
    ScopedLocalZone const local("WEST+1");
    EXPECT_EQ(Read("1970-01-01T00:00:00"), TimeInterval::kHour);
    EXPECT_EQ(Read("1969-12-31T23:59:59.999999999Z"), -1);
    EXPECT_EQ(Read("1969-12-31T24:00:00.0Z"), 0);
    EXPECT_EQ(Read("4294967295-12-31T23:59:59Z"), LLONG_MAX);
    for (auto const* time : {"", "T00:00:00.Z", "T00:00:00ZZ", "T00:00:00+14:01", "T24:00:00.1Z", "T25:00:00Z"})
        EXPECT_THROW(Read(std::string("1970-01-01") + time), InvalidDateTimeString) << time;
}

}  // namespace
