#include "foundation/text/numerals.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "foundation/text/ascii.h"
#include "foundation/text/numeral.h"

namespace {

// What `read` makes of each text, as text: the value or why there is none.
template <class Read>
void ExpectEach(Read read, Stringy const& expected, std::initializer_list<char const*> texts) {
    for (auto text : texts) {
        Stringy outcome;
        try {
            outcome = std::to_string(read(ConstData(text)));
        } catch (NotANumeral const&) {
            outcome = "not one";
        } catch (NumeralTooLarge const&) {
            outcome = "too large";
        }
        EXPECT_EQ(outcome, expected) << '"' << text << '"';
    }
}

TEST(Numerals, UnsignedDecimalsAreDigitsAndNothingElse) {
    auto read = ReadAsciiDecimalNumeral64;
    ExpectEach(read, "7", {"7", "007", "0000000000000000000000000000007"});
    ExpectEach(read, "18446744073709551615", {"18446744073709551615", "000018446744073709551615"});
    ExpectEach(read, "too large", {"18446744073709551616", "18446744073709551620", "99999999999999999999x"});
    ExpectEach(read, "not one",
               {"", " 1", "1 ", "+1", "-1", "0x1", "1,0", "a", "\x80", "/", ":", "1844674407370955161x"});
    ExpectEach(ReadAsciiDecimalNumeral, "4294967295", {"4294967295"});
    ExpectEach(ReadAsciiDecimalNumeral, "too large", {"4294967296", "18446744073709551616"});
    ExpectEach([](ConstData text) { return ReadUTF8DecimalNumeral64(UStringRef<UTF8>(text.AsStringView())); }, "12",
               {"12"});
    EXPECT_THROW(ReadUTF8DecimalNumeral(UStringRef<UTF8>("\xC2\xB2")), NotANumeral);
}

TEST(Numerals, SignedDecimalsTakeOneSign) {
    auto read = ReadAsciiSignedDecimalNumeral64;
    ExpectEach(read, "-9223372036854775808", {"-9223372036854775808", "-09223372036854775808"});
    ExpectEach(read, "9223372036854775807", {"9223372036854775807", "+9223372036854775807"});
    ExpectEach(read, "too large", {"-9223372036854775809", "9223372036854775808", "+9223372036854775808"});
    ExpectEach(read, "0", {"0", "-0", "+0"});
    ExpectEach(read, "not one", {"", "-", "+", "--1", "+-1", "-+1", "++1", " -1", "- 1", "-1 "});
    ExpectEach(ReadAsciiSignedDecimalNumeral, "-2147483648", {"-2147483648"});
    ExpectEach(ReadAsciiSignedDecimalNumeral, "2147483647", {"+2147483647"});
    ExpectEach(ReadAsciiSignedDecimalNumeral, "too large", {"-2147483649", "2147483648", "99999999999999999999"});
}

TEST(Numerals, HexadecimalsTakeBothLetterCasesAndNoPrefix) {
    ExpectEach(ReadAsciiHexNumeral64, "255", {"ff", "FF", "fF", "000000000000000000ff"});
    ExpectEach(ReadAsciiHexNumeral64, "81985529216486895", {"0123456789abcdef", "0123456789ABCDEF"});
    ExpectEach(ReadAsciiHexNumeral64, "too large", {"10000000000000000", "fffffffffffffffff"});
    ExpectEach(ReadAsciiHexNumeral64, "not one", {"", "0x1", "g", "G", "@", "`", "-1", "f "});
    ExpectEach(ReadAsciiHexNumeral, "4294967295", {"ffffffff"});
    ExpectEach(ReadAsciiHexNumeral, "too large", {"100000000"});
}

TEST(Numerals, WhatCannotBeReadGivesTheDefault) {
    EXPECT_EQ(ReadAsciiDecimalNumeral64WithDefault("18446744073709551616", 3), 3u);
    EXPECT_EQ(ReadAsciiDecimalNumeral32WithDefault("12", 3), 12u);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral64WithDefault("-", -3), -3);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral32WithDefault("2147483648", -3), -3);
}

TEST(Numerals, WritersPadWithZerosUpToTheirCapacity) {
    EXPECT_EQ(MakeAsciiDecimalNumeral64(0, 0).AsStringView(), "");
    EXPECT_EQ(MakeAsciiDecimalNumeral64(0, 1).AsStringView(), "0");
    EXPECT_EQ(MakeAsciiDecimalNumeral64(7, 3).AsStringView(), "007");
    EXPECT_STREQ(MakeAsciiDecimalNumeral64(~0ull, 20).c_str(), "18446744073709551615");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral64(std::numeric_limits<long long>::min(), 0).AsStringView(),
              "-9223372036854775808");
    EXPECT_EQ(MakeAsciiSignedDecimalNumeral(-5, 20).AsStringView(), "-00000000000000000005");
    EXPECT_EQ(MakeAsciiHexNumeral64(255, 0).AsStringView(), "ff");
    EXPECT_EQ(MakeAsciiHexNumeral(0xabc, 16).AsStringView(), "0000000000000abc");
    EXPECT_THROW(MakeAsciiDecimalNumeral(1, 21), ConstDataCapacityExceeded);
    EXPECT_THROW(MakeAsciiDecimalNumeral(1, 4294967295u), ConstDataCapacityExceeded);
    EXPECT_THROW(MakeAsciiSignedDecimalNumeral64(-1, 21), ConstDataCapacityExceeded);
    EXPECT_THROW(MakeAsciiHexNumeral64(1, 17), ConstDataCapacityExceeded);
}

TEST(Numeral, RendersAnyIntegerInAnyBase) {
    auto text = [](Numeral const& numeral) { return Stringy(ConstData(numeral).AsStringView()); };
    EXPECT_EQ(text(Numeral(0, 10)), "0");
    EXPECT_EQ(text(Numeral(std::int8_t{-128}, 10)), "-128");
    EXPECT_EQ(text(Numeral(std::uint16_t{35}, 36)), "z");
    EXPECT_EQ(text(Numeral(std::numeric_limits<long long>::min(), 2)), "-1" + Stringy(63, '0'));
    EXPECT_EQ(text(Numeral(~0ull, 2)), Stringy(64, '1'));
    Numeral five(-5, 10);
    five.PadTo(3);
    Numeral copy(five);
    copy.PadTo(4);
    EXPECT_STREQ(reinterpret_cast<char const*>(static_cast<unsigned char const*>(five)), "-005");
    EXPECT_EQ(text(copy), "-0005");
    copy.PadTo(64);
    EXPECT_EQ(text(copy), "-" + Stringy(63, '0') + "5");
    EXPECT_THROW(copy.PadTo(65), ConstDataCapacityExceeded);
    EXPECT_EQ(Numeral::Sign(0u), ' ');
    EXPECT_EQ(Numeral::Sign(1u), '+');
    for (unsigned base : {0u, 1u, 37u}) EXPECT_THROW(Numeral(1, base), IllegalNumeralBase);
}

TEST(Ascii, ClassesEndWhereAsciiSaysAndCaseIsAsciiOnly) {
    Stringy const neighbours = "/0:9;@A[FGZ^_`afgz{\x80\xC1\xE1\xFF";
    auto members = [&](bool (*in_class)(unsigned char)) {
        Stringy found;
        std::ranges::copy_if(neighbours, std::back_inserter(found), in_class);
        return found;
    };
    EXPECT_EQ(members(Ascii::HexDigit), "09AFaf");
    EXPECT_EQ(members(Ascii::Letter), "AFGZafgz");
    EXPECT_EQ(members(Ascii::Alphanumeric_), "09AFGZ_afgz");
    EXPECT_TRUE(Ascii::EqualIgnoringCase("_Brand.XLAT", "_brand.xlat"));
    for (auto [one, other] : {std::pair("a", "ab"), {"@[", "`{"}, {"\xC3\x84", "\xC3\xA4"}})
        EXPECT_FALSE(Ascii::EqualIgnoringCase(one, other));
}

}  // namespace
