#include "messages/xml_duration.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

#include "foundation/base/debuggable_exception.h"

namespace {

std::string ReadAs(std::string_view text) try {
    return std::to_string(XMLDurationToTimeInterval(UStringRef<UTF8>(text)).Microseconds());
} catch (DebuggableException const& failure) {
    return failure.what();
}

TEST(XMLDuration, IsWrittenToTheByteAndReadInOtherSpellingsToo) {
    using Case = std::pair<char const*, long long>;
    for (auto const& [text, microseconds] : {Case{"PT0S", 0},
                                             {"PT0.000500S", 500},
                                             {"-PT1M", -60'000'000},
                                             {"P1D", 86'400'000'000},
                                             {"P1DT1H1S", 90'001'000'000},
                                             {"PT23H59M59.999999S", 86'399'999'999},
                                             {"P106751991DT4H54.775807S", LLONG_MAX},
                                             {"-P106751991DT4H54.775808S", LLONG_MIN}}) {
        EXPECT_EQ(TimeIntervalToXMLDuration(TimeInterval(microseconds)).AsStringView(), text);
        EXPECT_EQ(ReadAs(text), std::to_string(microseconds));
    }
    EXPECT_EQ(ReadAs("PT36H") + ReadAs("-PT0S") + ReadAs("PT1.050S"), "12960000000001050000");
}

TEST(XMLDuration, FailsWithTheMessageOfItsFault) {
    std::string const general = "Could not convert XMLDuration to TimeInterval";
    for (auto const* text :
         {"",        "-",      "P",      "PT",     "P1",    "P1DT",   "PTS",      "PT1.S", "PT.5S", "PT1.5",
          "PT1H.5S", "PT1M1H", "PT1S1S", "PT1.5M", "P1T1H", "PT1H1H", "PT1.5.5S", "P1D1H", "PDT1H", "P1M",
          "P1H",     "--P1D",  "+P1D",   "T1S",    "PT1S ", "PT1 S",  "pt1s",     "PT1,5S"})
        EXPECT_EQ(ReadAs(text), general) << text;
    for (auto const* text : {"P4294967296D", "P106751992D", "P106751991DT4H54.775808S", "-P106751991DT4H54.775809S"})
        EXPECT_EQ(ReadAs(text), general + " due to integer overflow.") << text;
    for (auto const* text : {"PT1.1234567S", "PT1.0000000S"})
        EXPECT_EQ(ReadAs(text), general + ": cannot handle more than microsecond precision.") << text;
}

}  // namespace
