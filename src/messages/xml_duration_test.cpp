#include "messages/xml_duration.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

#include "foundation/base/debuggable_exception.h"

namespace {

std::string Written(long long microseconds) {
    return std::string(TimeIntervalToXMLDuration(TimeInterval(microseconds)).AsStringView());
}

std::string ReadAs(std::string_view text) {
    try {
        return std::to_string(XMLDurationToTimeInterval(UStringRef<UTF8>(text)).Microseconds());
    } catch (DebuggableException const& failure) {
        return failure.what();
    }
}

using Row = std::pair<char const*, long long>;

constexpr Row kWritten[] = {{"PT0S", 0},
                            {"PT0.000500S", 500},
                            {"PT1.500000S", 1'500'000},
                            {"-PT1M", -60'000'000},
                            {"PT1M30S", 90'000'000},
                            {"PT1H1S", 3'601'000'000},
                            {"P1D", 86'400'000'000},
                            {"-P1DT1H", -90'000'000'000},
                            {"PT23H59M59.999999S", 86'399'999'999},
                            {"P106751991DT4H54.775807S", LLONG_MAX},
                            {"-P106751991DT4H54.775808S", LLONG_MIN}};
constexpr Row kReadToo[] = {{"P2D", 172'800'000'000}, {"PT36H", 129'600'000'000},
                            {"P0DT0H0M0.0S", 0},      {"-PT0S", 0},
                            {"PT1.5S", 1'500'000},    {"PT1.050S", 1'050'000},
                            {"PT007M", 420'000'000},  {"PT4294967295S", 4'294'967'295'000'000}};

TEST(XMLDuration, IsWrittenToTheByteAndReadInOtherSpellingsToo) {
    for (auto const& [text, microseconds] : kWritten) {
        EXPECT_EQ(Written(microseconds), text);
        EXPECT_EQ(ReadAs(text), std::to_string(microseconds)) << text;
    }
    for (auto const& [text, microseconds] : kReadToo) EXPECT_EQ(ReadAs(text), std::to_string(microseconds)) << text;
}

TEST(XMLDuration, FailsWithTheMessageOfItsFault) {
    std::string const general = "Could not convert XMLDuration to TimeInterval";
    for (auto const* text :
         {"",       "-",     "P",      "-P",     "PT",       "P1",      "P1DT",   "P1DT1",      "PT1",
          "PTS",    "PT1.S", "PT.5S",  "PT1.5",  "PT1.",     "PT1H.5S", "PT1H1H", "PT1M1H",     "PT1M1M",
          "PT1S1S", "PT1S1", "PT1S1M", "PT1.5M", "PT1.5.5S", "P1T1H",   "P1D1D",  "P1D1H",      "PDT1H",
          "P1M",    "P1Y",   "P1W",    "P1H",    "PTT1S",    "PP1D",    "P-1D",   "--P1D",      "+P1D",
          "1",      "T1S",   " PT1S",  "PT1S ",  "PT1 S",    "pt1s",    "PT1,5S", "PT\xD9\xA1S"})
        EXPECT_EQ(ReadAs(text), general) << text;
    EXPECT_EQ(ReadAs(std::string_view("PT1S\0", 5)), general);
    for (auto const* text :
         {"P4294967296D", "PT4294967296S", "PT0.4294967296S", "PT1S4294967296", "P4294967295D", "P106751992D",
          "P106751991DT4H54.775808S", "-P106751991DT4H54.775809S", "P213503982DT8H1M49.551616S",
          "P106751991DT4294967295H", "PT4294967295H4294967295M4294967295.999999S"})
        EXPECT_EQ(ReadAs(text), general + " due to integer overflow.") << text;
    for (auto const* text : {"PT1.1234567S", "PT1.0000000S", "PT0.0000000000000000000000000000000000000000S"})
        EXPECT_EQ(ReadAs(text), general + ": cannot handle more than microsecond precision.") << text;
}

}  // namespace
