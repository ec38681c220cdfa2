#include "foundation/text/numerals.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "foundation/text/ascii.h"
#include "foundation/text/numeral.h"

namespace {

constexpr auto kLeast = std::numeric_limits<long long>::min();

TEST(Numerals, UnsignedDecimalsAreDigitsAndNothingElse) {
    auto read = ReadAsciiDecimalNumeral64;
    for (auto text : {"7", "007", "0000000000000000000000000000007"}) EXPECT_EQ(read(text), 7u) << text;
    EXPECT_EQ(read("000018446744073709551615"), 18446744073709551615u);
    for (auto text : {"18446744073709551616", "18446744073709551620", "99999999999999999999x"})
        EXPECT_THROW(read(text), NumeralTooLarge) << text;
    for (auto text : {"", " 1", "1 ", "+1", "-1", "0x1", "1,0", "a", "\x80", "/", ":", "1844674407370955161x"})
        EXPECT_THROW(read(text), NotANumeral) << text;
    EXPECT_EQ(ReadAsciiDecimalNumeral("4294967295"), 4294967295u);
    for (auto text : {"4294967296", "18446744073709551616"})
        EXPECT_THROW(ReadAsciiDecimalNumeral(text), NumeralTooLarge);
}

TEST(Numerals, SignedDecimalsTakeOneSign) {
    auto read = ReadAsciiSignedDecimalNumeral64;
    EXPECT_EQ(read("-09223372036854775808"), kLeast);
    EXPECT_EQ(read("+9223372036854775807"), -(kLeast + 1));
    for (auto text : {"0", "-0", "+0"}) EXPECT_EQ(read(text), 0) << text;
    for (auto text : {"-9223372036854775809", "9223372036854775808", "+9223372036854775808"})
        EXPECT_THROW(read(text), NumeralTooLarge) << text;
    for (auto text : {"", "-", "+", "--1", "+-1", "-+1", "++1", " -1", "- 1", "-1 "})
        EXPECT_THROW(read(text), NotANumeral) << text;
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral("-2147483648"), -2147483648);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral("+2147483647"), 2147483647);
    for (auto text : {"-2147483649", "2147483648", "99999999999999999999"})
        EXPECT_THROW(ReadAsciiSignedDecimalNumeral(text), NumeralTooLarge) << text;
}

TEST(Numerals, HexadecimalsTakeBothLetterCasesAndNoPrefix) {
    auto read = ReadAsciiHexNumeral64;
    for (auto text : {"ff", "FF", "fF", "000000000000000000ff"}) EXPECT_EQ(read(text), 255u) << text;
    for (auto text : {"0123456789abcdef", "0123456789ABCDEF"}) EXPECT_EQ(read(text), 0x0123456789abcdefu) << text;
    for (auto text : {"10000000000000000", "fffffffffffffffff"}) EXPECT_THROW(read(text), NumeralTooLarge) << text;
    for (auto text : {"", "0x1", "/", ":", "g", "G", "@", "`", "-1", "f "})
        EXPECT_THROW(read(text), NotANumeral) << text;
    EXPECT_EQ(ReadAsciiHexNumeral("ffffffff"), 4294967295u);
    EXPECT_THROW(ReadAsciiHexNumeral("100000000"), NumeralTooLarge);
}

TEST(Numerals, WhatCannotBeReadGivesTheDefault) {
    EXPECT_EQ(ReadAsciiDecimalNumeral64WithDefault("18446744073709551616", 3), 3u);
    EXPECT_EQ(ReadAsciiDecimalNumeral32WithDefault("12", 3), 12u);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral64WithDefault("-", -3), -3);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral32WithDefault("2147483648", -3), -3);
}

TEST(Numerals, WritersPadWithZerosUpToTheirCapacity) {
    EXPECT_EQ(MakeAsciiDecimalNumeral64(0, 0).AsStringView(), "");
    EXPECT_EQ(MakeAsciiDecimalNumeral64(7, 3).AsStringView(), "007");
    EXPECT_STREQ(MakeAsciiDecimalNumeral64(~0ull, 20).c_str(), "18446744073709551615");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral64(kLeast, 0).AsStringView(), "-9223372036854775808");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral(-5, 20).AsStringView(), "-00000000000000000005");
    EXPECT_EQ(MakeAsciiHexNumeral(0xabc, 16).AsStringView(), "0000000000000abc");
    EXPECT_THROW(MakeAsciiDecimalNumeral(1, 21), ConstDataCapacityExceeded);
    EXPECT_THROW(MakeAsciiHexNumeral64(1, 17), ConstDataCapacityExceeded);
}

TEST(Numeral, RendersAnyIntegerInAnyBaseWithAnyNumberOfDigits) {
    auto padded = [](Numeral numeral, unsigned int digits) {
        numeral.PadTo(digits);
        return Stringy(ConstData(numeral).AsStringView());
    };
    EXPECT_EQ(padded(Numeral(0, 10), 0), "0");
    EXPECT_EQ(padded(Numeral(std::int8_t{-128}, 10), 0), "-128");
    EXPECT_EQ(padded(Numeral(std::uint16_t{35}, 36), 0), "z");
    EXPECT_EQ(padded(Numeral(kLeast, 2), 64), "-1" + Stringy(63, '0'));
    EXPECT_EQ(padded(Numeral(~0ull, 2), 64), Stringy(64, '1'));
    EXPECT_EQ(padded(Numeral(-5, 10), 4), "-0005");
    EXPECT_THROW(padded(Numeral(-5, 10), 65), ConstDataCapacityExceeded);
    for (unsigned base : {0u, 1u, 37u}) EXPECT_THROW(Numeral(1, base), IllegalNumeralBase);
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
