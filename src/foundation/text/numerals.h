#pragma once

#include <concepts>
#include <cstddef>

#include "foundation/base/const_data.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/text/fixed_ascii.h"
#include "foundation/text/ustring_ref.h"

// Reading and writing whole numbers as plain ASCII numerals.
//
// There is no locale and no tolerance: no blank, separator or prefix is accepted anywhere, a sign only by the signed
// readers; leading zeros are ignored. Every reader tells "not a numeral" from "too large for the target". Any thread may
// call.

// The text is not a numeral of the kind asked for. An empty text never is one.
class NotANumeral : public DebuggableException {};
// The text may be a numeral, but its value is outside the target's range.
class NumeralTooLarge : public DebuggableException {};

enum class NumeralResult { Success = 0, NotANumeral = 1, TooLarge = 2 };

// Read without throwing; `value` holds the number on success only and is unspecified otherwise.
//
// The range is tested before each byte is looked at, which is meant: an overlong run of digits that ends in a stray
// byte is TooLarge, not NotANumeral.

// One or more of "0" to "9".
NumeralResult TryReadAsciiDecimalNumeral(ConstData text, unsigned long long& value);
NumeralResult TryReadAsciiDecimalNumeral(ConstData text, unsigned int& value);
// The same after one optional "-" or "+".
NumeralResult TryReadAsciiDecimalNumeral(ConstData text, long long& value);
NumeralResult TryReadAsciiDecimalNumeral(ConstData text, int& value);
// One or more hexadecimal digits of either letter case.
NumeralResult TryReadAsciiHexNumeral(ConstData text, unsigned long long& value);
NumeralResult TryReadAsciiHexNumeral(ConstData text, unsigned int& value);

// Read or throw NotANumeral or NumeralTooLarge.
unsigned long long ReadAsciiDecimalNumeral64(ConstData text);
unsigned int ReadAsciiDecimalNumeral(ConstData text);
long long ReadAsciiSignedDecimalNumeral64(ConstData text);
int ReadAsciiSignedDecimalNumeral(ConstData text);
unsigned long long ReadAsciiHexNumeral64(ConstData text);
unsigned int ReadAsciiHexNumeral(ConstData text);
// The bytes of the UTF-8 text by the same rules.
unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text);
unsigned int ReadUTF8DecimalNumeral(UStringRef<UTF8> text);

// Read, or give `fallback` for whatever cannot be read.
unsigned long long ReadAsciiDecimalNumeral64WithDefault(ConstData text, unsigned long long fallback);
unsigned int ReadAsciiDecimalNumeral32WithDefault(ConstData text, unsigned int fallback);
long long ReadAsciiSignedDecimalNumeral64WithDefault(ConstData text, long long fallback);
int ReadAsciiSignedDecimalNumeral32WithDefault(ConstData text, int fallback);

// What the writers return: wide enough for every 64-bit value.
using AsciiDecimalNumeral = FixedAscii<20>;
using AsciiSignedDecimalNumeral = FixedAscii<21>;
using AsciiHexNumeral = FixedAscii<16>;

// Write with at least `minDigits` digits, "0" put before the value's own as needed; a sign ("-" only) is not counted.
// Hexadecimal letters are lower case. A `minDigits` that does not fit the result throws ConstDataCapacityExceeded.
//
// The value 0 has no digits of its own, which is meant: with `minDigits` 0 the numeral is empty, with 1 it is "0".
AsciiDecimalNumeral MakeAsciiDecimalNumeral64(unsigned long long value, unsigned int minDigits);
AsciiSignedDecimalNumeral MakeAsciiSignedDecimalNumeral64(long long value, unsigned int minDigits);
AsciiDecimalNumeral MakeAsciiDecimalNumeral(unsigned int value, unsigned int minDigits);
AsciiSignedDecimalNumeral MakeAsciiSignedDecimalNumeral(int value, unsigned int minDigits);
AsciiHexNumeral MakeAsciiHexNumeral64(unsigned long long value, unsigned int minDigits);
AsciiHexNumeral MakeAsciiHexNumeral(unsigned int value, unsigned int minDigits);

// A base outside 2 to 36 was asked for: there are no digits to write it with.
class IllegalNumeralBase : public DebuggableException {};

// A whole number rendered as text, in any base from 2 to 36 and padded with zeros on demand.
//
// The text lives in the object: the views and pointers it converts to are valid as long as the object is neither
// padded nor destroyed. A copy has a text of its own. Zero renders as "0"; only a negative number shows its sign.
class Numeral {
  public:
    // `value` may be of any integer type of up to 64 bits.
    template <std::integral T>
    Numeral(T value, unsigned int base) : sign_(Sign(value)), negative_(sign_ == '-') {
        static_assert(sizeof(T) <= sizeof(unsigned long long));
        auto bits = static_cast<unsigned long long>(value);
        Render(negative_ ? 0 - bits : bits, base);
    }

    // Puts "0" before the digits until there are at least `digits` of them; the sign is not counted. More than 64
    // throws ConstDataCapacityExceeded and changes nothing.
    void PadTo(unsigned int digits);

    // The sign of a negative number, and the digits.
    operator ConstData() const { return {Text(), text_ + kEnd}; }
    operator UStringRef<USAscii>() const { return {Text(), text_ + kEnd, true}; }
    // The same, with a NUL after the last digit.
    operator unsigned char const*() const { return Text(); }

    // "-" for a negative value, "+" for a positive one, a blank for zero.
    template <std::integral T>
    static constexpr unsigned char Sign(T value) {
        return value == 0 ? ' ' : value > 0 ? '+' : '-';
    }
    // The digit of a value below 36: "0" to "9", then "a" to "z".
    static constexpr unsigned char Digit(unsigned int value) {
        return static_cast<unsigned char>(value < 10 ? '0' + value : 'a' + (value - 10));
    }

  private:
    // Where the digits end: a place for the sign and those of a 64-bit value in base 2 come before, a NUL after.
    static constexpr std::size_t kEnd = 1 + 64;

    void Render(unsigned long long magnitude, unsigned int base);
    void Prepend(unsigned char digit);
    unsigned char const* Text() const { return text_ + first_ - (negative_ ? 1 : 0); }

    unsigned char text_[kEnd + 1] = {};
    // The place of the first digit; the sign stands before it.
    std::size_t first_ = kEnd;
    unsigned char sign_;
    bool negative_;
};
