#pragma once

#include <concepts>
#include <cstddef>

#include "foundation/base/const_data.h"
#include "foundation/text/fixed_ascii.h"
#include "foundation/text/ustring_ref.h"

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
    operator ConstData() const { return {Text(), text_ + end}; }
    operator UStringRef<USAscii>() const { return {Text(), text_ + end, true}; }
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
    // A place for the sign, the digits of a 64-bit value in base 2, and a NUL.
    static constexpr std::size_t end = 1 + 64;

    void Render(unsigned long long magnitude, unsigned int base);
    void Prepend(unsigned char digit);
    unsigned char const* Text() const { return text_ + first_ - (negative_ ? 1 : 0); }

    unsigned char text_[end + 1] = {};
    // The place of the first digit; the sign stands before it.
    std::size_t first_ = end;
    unsigned char sign_;
    bool negative_;
};
