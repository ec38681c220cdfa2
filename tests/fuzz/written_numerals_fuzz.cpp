// Numerals are written as the standard library writes them, and read back with any padding.
#include <charconv>

#include "foundation/text/numerals.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    auto const base = 2 + TakeInteger<unsigned char>(input) % 35u, digits = TakeInteger<unsigned char>(input) % 16u + 1;
    auto const value = TakeInteger<long long>(input);
    auto const bits = static_cast<unsigned long long>(value);
    char text[65];
    std::string_view const expected(text, std::to_chars(text, std::end(text), value, static_cast<int>(base)).ptr);
    Require(static_cast<ConstData>(Numeral(value, base)).AsStringView() == expected);
    Require(ReadAsciiSignedDecimalNumeral64(MakeAsciiSignedDecimalNumeral64(value, digits)) == value);
    Require(ReadAsciiHexNumeral64(MakeAsciiHexNumeral64(bits, digits)) == bits);
}
