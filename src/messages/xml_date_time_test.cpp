#include "messages/xml_date_time.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "foundation/time/scoped_local_zone.h"

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();

std::string Written(long long microseconds) {
    return std::string(InstantToXMLDateTime(Instant(microseconds)).AsStringView());
}

long long ReadDateTime(std::string_view text) {
    return XMLDateTimeToInstant(UStringRef<UTF8>(text)).Microseconds();
}

TEST(XMLDate, IsWrittenAndReadBack) {
    for (auto const* text : {"0000-01-01", "0999-12-31", "2024-02-29", "12345-06-07", "4294967295-12-31"})
        EXPECT_EQ(DateRecordToXMLDate(XMLDateToDateRecord(text)).AsStringView(), text);
    EXPECT_EQ(XMLDateToDateRecord("2026-11-15"), (DateRecord{15, Month::November, 2026}));
    EXPECT_EQ(DateRecordToXMLDate({255, static_cast<Month>(255), 4'294'967'295}).AsStringView(), "4294967295-255-255");
}

TEST(XMLDate, AnythingElseThrows) {
    for (auto const* text : {"", "-", "2026", "2026-11", "2026-11-1", "2026-11-15 ", " 2026-11-15", "2026-11-15Z",
                             "026-11-15", "02026-11-15", "+2026-11-15", "--2026-11-15", "2026-13-01", "2026-00-01",
                             "2026-11-31", "2026-11-00", "2026/11/15", "4294967296-01-01", "-2026-02-30"})
        EXPECT_THROW(XMLDateToDateRecord(text), InvalidDateTimeString) << text;
    EXPECT_THROW(XMLDateToDateRecord("-0001-01-01"), InvalidDateTimeNegativeYear);
    EXPECT_THROW(XMLDateTimeToInstant("-0001-01-01T00:00:00Z"), InvalidDateTimeNegativeYear);
}

TEST(XMLDateTime, IsWrittenInTheLocalZone) {
    struct {
        char const* zone;
        char const* text;
    } const table[] = {{"UTC0", "2026-11-15T02:16:00Z"},           {"EAST-5:30", "2026-11-15T07:46:00+05:30"},
                       {"WEST+3:30", "2026-11-14T22:46:00-03:30"}, {"ODD-0:19:32", "2026-11-15T02:35:00+00:19"},
                       {"ODD+0:00:59", "2026-11-15T02:16:00Z"},    {"FAR-20", "2026-11-15T16:16:00+14:00"},
                       {"FAR+20", "2026-11-14T12:16:00-14:00"}};
    for (auto const& row : table) {
        ScopedLocalZone const local(row.zone);
        EXPECT_EQ(Written(1'794'708'960'000'000), row.text);
        EXPECT_EQ(ReadDateTime(row.text), 1'794'708'960'000'000);
    }
    EXPECT_EQ(Written(kFirst), "0000-01-01T00:00:00Z");
    EXPECT_EQ(Written(kLast), "294247-01-10T04:00:54Z");
    EXPECT_EQ(TimeOfDayToXMLTime({7, 5, 9}).AsStringView(), "07:05:09");
    EXPECT_EQ(TimeZoneToText(TimeZone(std::numeric_limits<int>::min())).AsStringView(), "-596523:14");
}

TEST(XMLDateTime, ComesBackToTheSecond) {
    ScopedLocalZone const local("EAST-9:30");
    std::mt19937_64 random(94);
    std::uniform_int_distribution<long long> anySecond(-62'167'000'000, kLast / TimeInterval::kSecond);
    for (int i = 0; i < 5'000; ++i) {
        auto const instant = anySecond(random) * TimeInterval::kSecond;
        ASSERT_EQ(ReadDateTime(Written(instant)), instant) << Written(instant);
    }
}

TEST(XMLDateTime, IsReadInOtherSpellings) {
    ScopedLocalZone const local("WEST+1");
    struct {
        char const* text;
        long long microseconds;
    } const table[] = {
        {"1970-01-01T00:00:00", 3'600'000'000},     {"1970-01-01T00:00:00.5Z", 500'000},
        {"1969-12-31T23:59:59.999999999Z", -1},     {"1969-12-31T24:00:00.0Z", 0},
        {"1970-01-01T14:00:00+14:00", 0},           {"1970-01-01T00:00:00-00:00", 0},
        {"294247-01-10T04:00:54.775807Z", kLast},   {"294247-01-10T04:00:55Z", kLast},
        {"4294967295-12-31T23:59:59-14:00", kLast},
    };
    for (auto const& row : table) EXPECT_EQ(ReadDateTime(row.text), row.microseconds) << row.text;
}

TEST(XMLDateTime, AnythingElseThrows) {
    for (auto const* text : {"",
                             "1970-01-01",
                             "1970-01-01T",
                             "1970-01-01 00:00:00Z",
                             "1970-01-01t00:00:00Z",
                             "1970-01-01T00:00Z",
                             "1970-01-01T00:00:00.Z",
                             "1970-01-01T00:00:00z",
                             "1970-01-01T00:00:00ZZ",
                             "1970-01-01T00:00:00+0000",
                             "1970-01-01T00:00:00+00",
                             "1970-01-01T00:00:00+14:01",
                             "1970-01-01T00:00:00+00:60",
                             "1970-01-01T24:00:01Z",
                             "1970-01-01T24:00:00.1Z",
                             "1970-01-01T25:00:00Z",
                             "1970-01-01T00:60:00Z",
                             "1970-01-01T00:00:60Z",
                             "1970-02-29T00:00:00Z",
                             "1970-01-01T00:00:00Z ",
                             "-1970-01-01T25:00:00Z"})
        EXPECT_THROW(ReadDateTime(text), InvalidDateTimeString) << text;
}

}  // namespace
