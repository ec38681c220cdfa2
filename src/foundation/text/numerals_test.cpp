#include "foundation/text/numerals.h"

#include <gtest/gtest.h>

#include <limits>

#include "foundation/text/ascii.h"

namespace {

constexpr auto kLeast = std::numeric_limits<long long>::min();

TEST(Numerals, ReadersTakeTheWholeRangeOfTheirTypeAndNoMore) {
    EXPECT_EQ(ReadAsciiDecimalNumeral64("000018446744073709551615"), 18446744073709551615u);
    EXPECT_EQ(ReadAsciiDecimalNumeral("4294967295"), 4294967295u);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral64("-09223372036854775808"), kLeast);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral("+2147483647"), 2147483647);
    for (auto text : {"18446744073709551616", "18446744073709551620", "99999999999999999999x", "1844674407370955162x"})
        EXPECT_THROW(ReadAsciiDecimalNumeral64(text), NumeralTooLarge) << text;
    EXPECT_THROW(ReadAsciiDecimalNumeral("4294967296"), NumeralTooLarge);
    for (auto text : {"-9223372036854775809", "+9223372036854775808"})
        EXPECT_THROW(ReadAsciiSignedDecimalNumeral64(text), NumeralTooLarge) << text;
    EXPECT_THROW(ReadAsciiSignedDecimalNumeral("-2147483649"), NumeralTooLarge);
    EXPECT_EQ(ReadAsciiHexNumeral64("FFFFffffFFFFffff"), ~0ull);
    EXPECT_THROW(ReadAsciiHexNumeral("100000000"), NumeralTooLarge);
}

TEST(Numerals, ReadersTakeDigitsAndNothingElse) {
    for (auto text : {"", " 1", "1 ", "+1", "-1", "0x1", "1,0", "\x80", "/", ":", "1844674407370955161x"})
        EXPECT_THROW(ReadAsciiDecimalNumeral64(text), NotANumeral) << text;
    for (auto text : {"", "-", "+", "--1", "+-1", "-+1", " -1", "- 1"})
        EXPECT_THROW(ReadAsciiSignedDecimalNumeral64(text), NotANumeral) << text;
    for (auto text : {"", "0x1", "-1", "g"}) EXPECT_THROW(ReadAsciiHexNumeral64(text), NotANumeral) << text;
}

TEST(Numerals, WritersPadWithZerosUpToTheirCapacity) {
    EXPECT_EQ(MakeAsciiDecimalNumeral64(0, 0).AsStringView(), "");
    EXPECT_EQ(MakeAsciiDecimalNumeral64(7, 3).AsStringView(), "007");
    EXPECT_STREQ(MakeAsciiDecimalNumeral64(~0ull, 20).c_str(), "18446744073709551615");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral64(kLeast, 0).AsStringView(), "-9223372036854775808");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral(-5, 20).AsStringView(), "-00000000000000000005");
    EXPECT_THROW(MakeAsciiDecimalNumeral(1, 21), ConstDataCapacityExceeded);
    EXPECT_EQ(MakeAsciiHexNumeral64(0xABC, 4).AsStringView(), "0abc");
    for (unsigned base : {1u, 37u}) EXPECT_THROW(Numeral(1, base), IllegalNumeralBase);
    Numeral numeral(kLeast, 36);
    EXPECT_EQ(static_cast<ConstData>(numeral).AsStringView(), "-1y2p0ij32e8e8");
    EXPECT_THROW(numeral.PadTo(65), ConstDataCapacityExceeded);
    numeral.PadTo(64);
    EXPECT_EQ(static_cast<ConstData>(numeral).AsStringView(), "-" + Stringy(51, '0') + "1y2p0ij32e8e8");
}

TEST(Ascii, ClassesEndWhereAsciiSaysAndCaseIsAsciiOnly) {
    Stringy const neighbours = "/09:@AZ[^_`az{\x80\xC1\xE1\xFF";
    Stringy members;
    std::ranges::copy_if(neighbours, std::back_inserter(members), Ascii::Alphanumeric_);
    EXPECT_EQ(members, "09AZ_az");
    EXPECT_TRUE(Ascii::EqualIgnoringCase("_Brand.XLAT", "_brand.xlat"));
    for (auto [one, other] : {std::pair("a", "ab"), {"@[", "`{"}, {"\xC3\x84", "\xC3\xA4"}})
        EXPECT_FALSE(Ascii::EqualIgnoringCase(one, other));
}

}  // namespace
