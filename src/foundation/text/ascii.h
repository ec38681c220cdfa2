#pragma once

#include <algorithm>

#include "foundation/base/const_data.h"

// The character classes and letter cases of ASCII, whatever the locale. Bytes from 0x80 up are in no class.
//
// Each class is a predicate over one byte and fits the standard algorithms: std::all_of(begin, end, Ascii::Digit).
namespace Ascii {

// "0" to "9".
constexpr bool Digit(unsigned char byte) {
    return byte >= '0' && byte <= '9';
}
// "A" to "Z".
constexpr bool Upper(unsigned char byte) {
    return byte >= 'A' && byte <= 'Z';
}
// "a" to "z".
constexpr bool Lower(unsigned char byte) {
    return byte >= 'a' && byte <= 'z';
}
// A letter of either case.
constexpr bool Letter(unsigned char byte) {
    return Upper(byte) || Lower(byte);
}
// A letter or a digit.
constexpr bool Alphanumeric(unsigned char byte) {
    return Letter(byte) || Digit(byte);
}
// A letter, a digit or the underscore: what names are made of.
constexpr bool Alphanumeric_(unsigned char byte) {
    return Alphanumeric(byte) || byte == '_';
}

// The lower-case form of an upper-case letter; any other byte unchanged.
constexpr unsigned char ToLower(unsigned char byte) {
    return Upper(byte) ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

// Whether two byte strings are equal, letters A to Z standing for a to z. Bytes outside ASCII must be the same.
inline bool EqualIgnoringCase(ConstData left, ConstData right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](unsigned char a, unsigned char b) { return ToLower(a) == ToLower(b); });
}

}  // namespace Ascii
