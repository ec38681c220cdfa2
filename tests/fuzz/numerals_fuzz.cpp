// Numerals are read and written as the standard library does it.
#include <charconv>

#include "foundation/text/numeral.h"
#include "foundation/text/numerals.h"
#include "tests/fuzz/fuzz.h"

template <class T>
static void CheckReading(std::string_view text, int base, NumeralResult (*read)(ConstData, T&)) {
    T value = 0, expected = 0;
    NumeralResult const result = read(text, value);
    if (std::is_signed_v<T> && text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), expected, base);
    bool const numeral = error != std::errc::invalid_argument && stop == text.data() + text.size();
    bool const fits = numeral && error == std::errc();
    Require(fits ? value == expected && result == NumeralResult::Success : result != NumeralResult::Success);
    Require(result == NumeralResult::TooLarge || !numeral || fits);
}

void Fuzz(std::string_view input) {
    CheckReading<unsigned long long>(input, 10, TryReadAsciiDecimalNumeral);
    CheckReading<unsigned int>(input, 10, TryReadAsciiDecimalNumeral);
    CheckReading<long long>(input, 10, TryReadAsciiDecimalNumeral);
    CheckReading<int>(input, 10, TryReadAsciiDecimalNumeral);
    CheckReading<unsigned long long>(input, 16, TryReadAsciiHexNumeral);
    CheckReading<unsigned int>(input, 16, TryReadAsciiHexNumeral);
    auto const base = 2 + TakeInteger<unsigned char>(input) % 35u, digits = TakeInteger<unsigned char>(input) % 16u + 1;
    auto const value = TakeInteger<long long>(input);
    auto const bits = static_cast<unsigned long long>(value);
    char text[65];
    std::string_view const expected(text, std::to_chars(text, std::end(text), value, static_cast<int>(base)).ptr);
    Require(static_cast<ConstData>(Numeral(value, base)).AsStringView() == expected);
    Require(ReadAsciiSignedDecimalNumeral64(MakeAsciiSignedDecimalNumeral64(value, digits)) == value);
    Require(ReadAsciiHexNumeral64(MakeAsciiHexNumeral64(bits, digits)) == bits);
}
