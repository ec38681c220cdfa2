#include "foundation/text/numerals.h"

#include <charconv>
#include <limits>
#include <utility>

namespace {

NumeralResult ReadUnsigned(ConstData text, int base, unsigned long long& value) {
    auto bytes = text.AsStringView();
    value = 0;
    auto [stop, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), value, base);
    if (error == std::errc::result_out_of_range) return NumeralResult::TooLarge;
    if (error != std::errc()) return NumeralResult::NotANumeral;
    if (stop == bytes.data() + bytes.size()) return NumeralResult::Success;
    // A number that leaves no room for another digit is too large, before the stray byte is looked at.
    auto most = std::numeric_limits<unsigned long long>::max() / static_cast<unsigned>(base);
    return value > most ? NumeralResult::TooLarge : NumeralResult::NotANumeral;
}

// Reads through the 64-bit form of the same reader.
template <class Wide, class Narrow>
NumeralResult ReadNarrow(NumeralResult (*read)(ConstData, Wide&), ConstData text, Narrow& value) {
    Wide wide;
    if (auto result = read(text, wide); result != NumeralResult::Success) return result;
    if (!std::in_range<Narrow>(wide)) return NumeralResult::TooLarge;
    value = static_cast<Narrow>(wide);
    return NumeralResult::Success;
}

NumeralResult ReadNegated(ConstData digits, long long& value) {
    unsigned long long magnitude;
    auto result = TryReadAsciiDecimalNumeral(digits, magnitude);
    if (result != NumeralResult::Success) return result;
    if (magnitude > 1ull << 63) return NumeralResult::TooLarge;
    value = static_cast<long long>(0 - magnitude);
    return NumeralResult::Success;
}

template <class T>
T ReadOrThrow(NumeralResult (*read)(ConstData, T&), ConstData text) {
    T value;
    switch (read(text, value)) {
        case NumeralResult::Success:
            return value;
        case NumeralResult::TooLarge:
            throw NumeralTooLarge();
        default:
            throw NotANumeral();
    }
}

template <class T>
T ReadOr(T fallback, ConstData text) {
    T value;
    return TryReadAsciiDecimalNumeral(text, value) == NumeralResult::Success ? value : fallback;
}

template <std::size_t Capacity>
void AppendDigits(FixedAscii<Capacity>& numeral, unsigned long long value, int base, unsigned min_digits) {
    char digits[20];
    char* end = value ? std::to_chars(digits, digits + sizeof digits, value, base).ptr : digits;
    auto count = static_cast<std::size_t>(end - digits);
    for (std::size_t have = count; have < min_digits; ++have) numeral.Append('0');
    numeral.Append(std::string_view(digits, count));
}

}  // namespace

NumeralResult TryReadAsciiDecimalNumeral(ConstData text, unsigned long long& value) {
    return ReadUnsigned(text, 10, value);
}

NumeralResult TryReadAsciiDecimalNumeral(ConstData text, unsigned int& value) {
    return ReadNarrow<unsigned long long>(TryReadAsciiDecimalNumeral, text, value);
}

NumeralResult TryReadAsciiDecimalNumeral(ConstData text, long long& value) {
    bool is_signed = !text.empty() && (*text.begin() == '-' || *text.begin() == '+');
    ConstData digits(text.begin() + (is_signed ? 1 : 0), text.end());
    if (is_signed && *text.begin() == '-') return ReadNegated(digits, value);
    return ReadNarrow<unsigned long long>(TryReadAsciiDecimalNumeral, digits, value);
}

NumeralResult TryReadAsciiDecimalNumeral(ConstData text, int& value) {
    return ReadNarrow<long long>(TryReadAsciiDecimalNumeral, text, value);
}

NumeralResult TryReadAsciiHexNumeral(ConstData text, unsigned long long& value) {
    return ReadUnsigned(text, 16, value);
}

NumeralResult TryReadAsciiHexNumeral(ConstData text, unsigned int& value) {
    return ReadNarrow<unsigned long long>(TryReadAsciiHexNumeral, text, value);
}

unsigned long long ReadAsciiDecimalNumeral64(ConstData text) {
    return ReadOrThrow<unsigned long long>(TryReadAsciiDecimalNumeral, text);
}

unsigned int ReadAsciiDecimalNumeral(ConstData text) {
    return ReadOrThrow<unsigned int>(TryReadAsciiDecimalNumeral, text);
}

long long ReadAsciiSignedDecimalNumeral64(ConstData text) {
    return ReadOrThrow<long long>(TryReadAsciiDecimalNumeral, text);
}

int ReadAsciiSignedDecimalNumeral(ConstData text) {
    return ReadOrThrow<int>(TryReadAsciiDecimalNumeral, text);
}

unsigned long long ReadAsciiHexNumeral64(ConstData text) {
    return ReadOrThrow<unsigned long long>(TryReadAsciiHexNumeral, text);
}

unsigned int ReadAsciiHexNumeral(ConstData text) {
    return ReadOrThrow<unsigned int>(TryReadAsciiHexNumeral, text);
}

unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral64(text.AsData());
}

unsigned int ReadUTF8DecimalNumeral(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral(text.AsData());
}

unsigned long long ReadAsciiDecimalNumeral64WithDefault(ConstData text, unsigned long long fallback) {
    return ReadOr(fallback, text);
}

unsigned int ReadAsciiDecimalNumeral32WithDefault(ConstData text, unsigned int fallback) {
    return ReadOr(fallback, text);
}

long long ReadAsciiSignedDecimalNumeral64WithDefault(ConstData text, long long fallback) {
    return ReadOr(fallback, text);
}

int ReadAsciiSignedDecimalNumeral32WithDefault(ConstData text, int fallback) {
    return ReadOr(fallback, text);
}

AsciiDecimalNumeral MakeAsciiDecimalNumeral64(unsigned long long value, unsigned int minDigits) {
    AsciiDecimalNumeral numeral;
    AppendDigits(numeral, value, 10, minDigits);
    return numeral;
}

AsciiSignedDecimalNumeral MakeAsciiSignedDecimalNumeral64(long long value, unsigned int minDigits) {
    AsciiSignedDecimalNumeral numeral;
    auto magnitude = static_cast<unsigned long long>(value);
    if (value < 0) {
        numeral.Append('-');
        magnitude = 0 - magnitude;
    }
    AppendDigits(numeral, magnitude, 10, minDigits);
    return numeral;
}

AsciiDecimalNumeral MakeAsciiDecimalNumeral(unsigned int value, unsigned int minDigits) {
    return MakeAsciiDecimalNumeral64(value, minDigits);
}

AsciiSignedDecimalNumeral MakeAsciiSignedDecimalNumeral(int value, unsigned int minDigits) {
    return MakeAsciiSignedDecimalNumeral64(value, minDigits);
}

AsciiHexNumeral MakeAsciiHexNumeral64(unsigned long long value, unsigned int minDigits) {
    AsciiHexNumeral numeral;
    AppendDigits(numeral, value, 16, minDigits);
    return numeral;
}

AsciiHexNumeral MakeAsciiHexNumeral(unsigned int value, unsigned int minDigits) {
    return MakeAsciiHexNumeral64(value, minDigits);
}

void Numeral::Render(unsigned long long magnitude, unsigned int base) {
    if (base < 2 || base > 36) throw IllegalNumeralBase();
    do {
        Prepend(Digit(static_cast<unsigned int>(magnitude % base)));
        magnitude /= base;
    } while (magnitude);
}

void Numeral::PadTo(unsigned int digits) {
    if (digits >= kEnd) throw ConstDataCapacityExceeded();
    while (kEnd - first_ < digits) Prepend('0');
}

void Numeral::Prepend(unsigned char digit) {
    text_[--first_] = digit;
    text_[first_ - 1] = sign_;
}
