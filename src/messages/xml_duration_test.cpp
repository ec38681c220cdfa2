#include "messages/xml_duration.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "foundation/base/debuggable_exception.h"

namespace {

constexpr auto kFirst = std::numeric_limits<long long>::min();
constexpr auto kLast = std::numeric_limits<long long>::max();

std::string Written(long long microseconds) {
    return std::string(TimeIntervalToXMLDuration(TimeInterval(microseconds)).AsStringView());
}

long long Read(std::string_view text) {
    return XMLDurationToTimeInterval(UStringRef<UTF8>(text)).Microseconds();
}

std::string Failure(std::string_view text) {
    try {
        return "read as " + std::to_string(Read(text));
    } catch (DebuggableException const& failure) {
        return failure.what();
    }
}

TEST(XMLDuration, IsWrittenToTheByteAndReadBack) {
    struct {
        long long microseconds;
        char const* text;
    } const table[] = {
        {0, "PT0S"},
        {1, "PT0.000001S"},
        {500, "PT0.000500S"},
        {1'500'000, "PT1.500000S"},
        {-60'000'000, "-PT1M"},
        {90'000'000, "PT1M30S"},
        {3'600'000'000, "PT1H"},
        {3'601'000'000, "PT1H1S"},
        {86'399'999'999, "PT23H59M59.999999S"},
        {86'400'000'000, "P1D"},
        {-90'000'000'000, "-P1DT1H"},
        {86'460'000'000, "P1DT1M"},
        {kLast, "P106751991DT4H54.775807S"},
        {kFirst, "-P106751991DT4H54.775808S"},
    };
    for (auto const& row : table) {
        EXPECT_EQ(Written(row.microseconds), row.text);
        EXPECT_EQ(Read(row.text), row.microseconds) << row.text;
    }
}

TEST(XMLDuration, ComesBackForEveryMagnitude) {
    std::mt19937_64 random(34);
    for (int i = 0; i < 20'000; ++i) {
        auto const microseconds = static_cast<long long>(random()) >> (i % 64);
        ASSERT_EQ(Read(Written(microseconds)), microseconds);
    }
}

TEST(XMLDuration, IsReadInOtherSpellings) {
    struct {
        char const* text;
        long long microseconds;
    } const table[] = {
        {"P2D", 172'800'000'000}, {"PT36H", 129'600'000'000},
        {"P0DT0H0M0.0S", 0},      {"-PT0S", 0},
        {"PT1.5S", 1'500'000},    {"PT1.050S", 1'050'000},
        {"PT007M", 420'000'000},  {"PT4294967295S", 4'294'967'295'000'000},
    };
    for (auto const& row : table) EXPECT_EQ(Read(row.text), row.microseconds) << row.text;
}

TEST(XMLDuration, FailsWithTheMessageOfItsFault) {
    auto const general = "Could not convert XMLDuration to TimeInterval";
    auto const overflow = "Could not convert XMLDuration to TimeInterval due to integer overflow.";
    auto const precision =
        "Could not convert XMLDuration to TimeInterval: cannot handle more than microsecond precision.";
    for (auto const* text :
         {"",       "-",     "P",      "-P",     "PT",       "P1",      "P1DT",   "P1DT1",      "PT1",
          "PTS",    "PT1.S", "PT.5S",  "PT1.5",  "PT1.",     "PT1H.5S", "PT1H1H", "PT1M1H",     "PT1M1M",
          "PT1S1S", "PT1S1", "PT1S1M", "PT1.5M", "PT1.5.5S", "P1T1H",   "P1D1D",  "P1D1H",      "PDT1H",
          "P1M",    "P1Y",   "P1W",    "P1H",    "PTT1S",    "PP1D",    "P-1D",   "--P1D",      "+P1D",
          "1",      "T1S",   " PT1S",  "PT1S ",  "PT1 S",    "pt1s",    "PT1,5S", "PT\xD9\xA1S"})
        EXPECT_EQ(Failure(text), general) << text;
    EXPECT_EQ(Failure(std::string_view("PT1S\0", 5)), general);
    for (auto const* text :
         {"P4294967296D", "PT4294967296S", "PT0.4294967296S", "PT1S4294967296", "P4294967295D", "P106751992D",
          "P106751991DT4H54.775808S", "-P106751991DT4H54.775809S", "P213503982DT8H1M49.551616S",
          "P106751991DT4294967295H", "PT4294967295H4294967295M4294967295.999999S"})
        EXPECT_EQ(Failure(text), overflow) << text;
    for (auto const* text : {"PT1.1234567S", "PT1.0000000S", "PT0.0000000000000000000000000000000000000000S"})
        EXPECT_EQ(Failure(text), precision) << text;
}

}  // namespace
