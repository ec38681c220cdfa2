// Numerals are read as the standard library reads them, but for the plus sign.
#include <charconv>

#include "foundation/text/numerals.h"
#include "tests/fuzz/fuzz.h"

template <class T>
static void Check(std::string_view text, int base, NumeralResult (*read)(ConstData, T&)) {
    T value = 0, right = 0;
    auto const got = read(text, value);
    if (std::is_signed_v<T> && text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    auto const [stop, error] = std::from_chars(text.begin(), text.end(), right, base);
    if (error == std::errc::invalid_argument || stop != text.end()) return Require(got != NumeralResult::Success);
    Require(error == std::errc() ? got == NumeralResult::Success && value == right : got == NumeralResult::TooLarge);
}

void Fuzz(std::string_view input) {
    Check<unsigned long long>(input, 10, TryReadAsciiDecimalNumeral);
    Check<unsigned int>(input, 10, TryReadAsciiDecimalNumeral);
    Check<long long>(input, 10, TryReadAsciiDecimalNumeral);
    Check<int>(input, 10, TryReadAsciiDecimalNumeral);
    Check<unsigned long long>(input, 16, TryReadAsciiHexNumeral);
    Check<unsigned int>(input, 16, TryReadAsciiHexNumeral);
}
