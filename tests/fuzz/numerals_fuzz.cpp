// Digits are a numeral if their number is in range, nothing else is, and what is written reads back.
#include <charconv>

#include "foundation/text/numerals.h"
#include "tests/fuzz/fuzz.h"

// Whether a text is digits without leading zeros whose number is at most `greatest`, told without arithmetic.
static bool IsAtMost(std::string_view text, std::string_view greatest) {
    if (text.empty() || text.find_first_not_of("0123456789") != text.npos) return false;
    return text.size() != greatest.size() ? text.size() < greatest.size() : text <= greatest;
}

static void CheckRead(std::string_view text) {
    unsigned long long value;
    bool const reads = TryReadAsciiDecimalNumeral(text, value) == NumeralResult::Success;
    while (text.size() > 1 && text[0] == '0') text.remove_prefix(1);
    Require(reads == IsAtMost(text, "18446744073709551615"));
    Require(!reads || MakeAsciiDecimalNumeral64(value, 1).AsStringView() == text);
}

static void CheckWritten(std::string_view input) {
    auto const base = 2 + TakeInteger<unsigned char>(input) % 35u, digits = TakeInteger<unsigned char>(input) % 16u + 1;
    auto const value = TakeInteger<long long>(input);
    auto const bits = static_cast<unsigned long long>(value);
    char text[65];
    std::string_view const expected(text, std::to_chars(text, std::end(text), value, static_cast<int>(base)).ptr);
    Require(static_cast<ConstData>(Numeral(value, base)).AsStringView() == expected);
    Require(ReadAsciiSignedDecimalNumeral64(MakeAsciiSignedDecimalNumeral64(value, digits)) == value);
    Require(ReadAsciiHexNumeral64(MakeAsciiHexNumeral64(bits, digits)) == bits);
}

void Fuzz(std::string_view input) {
    CheckRead(input);
    CheckWritten(input);
}
