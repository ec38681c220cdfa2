#include "foundation/text/numerals.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>

#include "foundation/text/ascii.h"
#include "foundation/text/numeral.h"

namespace {

using Result = NumeralResult;

template <class T>
struct Reading {
    char const* text;
    Result result;
    T value = 0;
};

template <class T, class Read>
void Check(std::initializer_list<Reading<T>> readings, Read read) {
    for (auto const& [text, result, value] : readings) {
        T got = 0;
        EXPECT_EQ(read(ConstData(text), got), result) << '"' << text << '"';
        if (result != Result::Success) continue;
        EXPECT_EQ(got, value) << '"' << text << '"';
    }
}

template <class T>
void CheckDecimal(std::initializer_list<Reading<T>> readings) {
    Check(readings, [](ConstData text, T& value) { return TryReadAsciiDecimalNumeral(text, value); });
}

template <class T>
void CheckHex(std::initializer_list<Reading<T>> readings) {
    Check(readings, [](ConstData text, T& value) { return TryReadAsciiHexNumeral(text, value); });
}

TEST(Numerals, UnsignedDecimalsAreDigitsAndNothingElse) {
    CheckDecimal<unsigned long long>({{"0", Result::Success, 0},
                                      {"007", Result::Success, 7},
                                      {"18446744073709551615", Result::Success, 18446744073709551615u},
                                      {"000018446744073709551615", Result::Success, 18446744073709551615u},
                                      {"18446744073709551616", Result::TooLarge},
                                      {"18446744073709551620", Result::TooLarge},
                                      {"99999999999999999999x", Result::TooLarge},
                                      {"1844674407370955161x", Result::NotANumeral}});
    for (auto text : {"", " 1", "1 ", "+1", "-1", "0x1", "1,000", "a", "\x80", "1.", "/", ":"})
        CheckDecimal<unsigned long long>({{text, Result::NotANumeral}});
    CheckDecimal<unsigned>({{"4294967295", Result::Success, 4294967295u},
                            {"4294967296", Result::TooLarge},
                            {"18446744073709551616", Result::TooLarge},
                            {"", Result::NotANumeral}});
}

TEST(Numerals, SignedDecimalsTakeOneSign) {
    using Limits = std::numeric_limits<long long>;
    CheckDecimal<long long>({{"-9223372036854775808", Result::Success, Limits::min()},
                             {"-9223372036854775807", Result::Success, -Limits::max()},
                             {"-9223372036854775809", Result::TooLarge},
                             {"+9223372036854775807", Result::Success, Limits::max()},
                             {"9223372036854775807", Result::Success, Limits::max()},
                             {"+9223372036854775808", Result::TooLarge},
                             {"-99999999999999999999", Result::TooLarge},
                             {"+5", Result::Success, 5},
                             {"-0", Result::Success, 0}});
    for (auto text : {"", "-", "+", "--1", "+-1", "-+1", "++1", " -1", "- 1", "-1 "})
        CheckDecimal<long long>({{text, Result::NotANumeral}});
    CheckDecimal<int>({{"-2147483648", Result::Success, std::numeric_limits<int>::min()},
                       {"2147483647", Result::Success, 2147483647},
                       {"-2147483649", Result::TooLarge},
                       {"2147483648", Result::TooLarge}});
}

TEST(Numerals, HexadecimalsTakeBothLetterCasesAndNoPrefix) {
    CheckHex<unsigned long long>({{"ff", Result::Success, 255},
                                  {"FF", Result::Success, 255},
                                  {"0123456789", Result::Success, 0x123456789},
                                  {"aBcDeF", Result::Success, 0xabcdef},
                                  {"ffffffffffffffff", Result::Success, 0xffffffffffffffffu},
                                  {"0ffffffffffffffff", Result::Success, 0xffffffffffffffffu},
                                  {"10000000000000000", Result::TooLarge}});
    for (auto text : {"", "0x1", "g", "G", "@", "`", "-1", "f "})
        CheckHex<unsigned long long>({{text, Result::NotANumeral}});
    CheckHex<unsigned>({{"ffffffff", Result::Success, 0xffffffffu}, {"100000000", Result::TooLarge}});
}

TEST(Numerals, TheOtherFormsThrowOrFallBack) {
    EXPECT_EQ(ReadAsciiDecimalNumeral64("18446744073709551615"), 18446744073709551615u);
    EXPECT_EQ(ReadAsciiSignedDecimalNumeral64("-7"), -7);
    EXPECT_EQ(ReadAsciiHexNumeral64("fF"), 255u);
    EXPECT_EQ(ReadUTF8DecimalNumeral64(UStringRef<UTF8>("12")), 12u);
    EXPECT_THROW(ReadAsciiDecimalNumeral64(""), NotANumeral);
    EXPECT_THROW(ReadAsciiDecimalNumeral("4294967296"), NumeralTooLarge);
    EXPECT_THROW(ReadAsciiSignedDecimalNumeral64("9223372036854775808"), NumeralTooLarge);
    EXPECT_THROW(ReadAsciiSignedDecimalNumeral("-2147483649"), NumeralTooLarge);
    EXPECT_THROW(ReadAsciiHexNumeral("100000000"), NumeralTooLarge);
    EXPECT_THROW(ReadUTF8DecimalNumeral(UStringRef<UTF8>("\xC2\xB2")), NotANumeral);
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

TEST(Numerals, WhatIsWrittenReadsBack) {
    std::mt19937_64 random(1);
    for (int round = 0; round < 20000; ++round) {
        unsigned long long value = random() >> (random() % 64);
        auto negated = static_cast<long long>(0 - value);
        ASSERT_EQ(ReadAsciiDecimalNumeral64(MakeAsciiDecimalNumeral64(value, 1)), value);
        ASSERT_EQ(ReadAsciiHexNumeral64(MakeAsciiHexNumeral64(value, 1)), value);
        ASSERT_EQ(ReadAsciiSignedDecimalNumeral64(MakeAsciiSignedDecimalNumeral64(negated, 1)), negated);
        ASSERT_EQ(ReadAsciiHexNumeral64(Numeral(value, 16)), value);
    }
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
    auto members = [](bool (*in_class)(unsigned char)) {
        Stringy found;
        for (int byte = 0; byte < 256; ++byte)
            if (in_class(static_cast<unsigned char>(byte))) found += static_cast<char>(byte);
        return found;
    };
    Stringy upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ", lower = "abcdefghijklmnopqrstuvwxyz", digits = "0123456789";
    EXPECT_EQ(members(Ascii::HexDigit), digits + "ABCDEFabcdef");
    EXPECT_EQ(members(Ascii::Letter), upper + lower);
    EXPECT_EQ(members(Ascii::Alphanumeric), digits + upper + lower);
    EXPECT_EQ(members(Ascii::Alphanumeric_), digits + upper + "_" + lower);
    EXPECT_TRUE(Ascii::EqualIgnoringCase("_Brand.XLAT", "_brand.xlat"));
    EXPECT_TRUE(Ascii::EqualIgnoringCase("", ConstData()));
    EXPECT_FALSE(Ascii::EqualIgnoringCase("a", "ab"));
    EXPECT_FALSE(Ascii::EqualIgnoringCase("@[", "`{"));
    EXPECT_FALSE(Ascii::EqualIgnoringCase("\xC3\x84", "\xC3\xA4"));
}

}  // namespace
