#pragma once

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/fixed_ascii.h"
#include "foundation/text/transcode.h"

// To and from the 8-bit encoding of the process's locale (LC_CTYPE), which is what the C library and the X toolkit take.
//
// A conversion is exact or throws: a character that the locale's encoding lacks is never replaced. Zero-terminated text
// cannot hold a zero character, and neither can these conversions: what stands after the first zero of the input is left
// out, in both directions.
//
// Any thread may call, as long as none changes the locale meanwhile.
namespace UnixPlatform {

// The locale's encoding has no form for a character (POSIX wcstombs).
class WideToMultiByteConvertError : public DebuggableException {};
// The bytes are not text in the locale's encoding (POSIX mbstowcs).
class MultiByteToWideConvertError : public DebuggableException {};

// Decode to code points, then FromNativeUnicode. Text that does not decode throws InvalidTextEncoding.
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF8> text);
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF16> text);
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF32> text);

// ToNativeUnicode, then encode. A character that is not encodable throws InvalidTextEncoding.
AutoUString<UTF8> ToUTF8(UStringRef<Local8Bit> text);
AutoUString<UTF16> ToUTF16(UStringRef<Local8Bit> text);
AutoUString<UTF32> ToUTF32(UStringRef<Local8Bit> text);

// Code points are the platform's wide characters.
AutoUString<Local8Bit> FromNativeUnicode(UStringRef<UTF32> text);
AutoUString<UTF32> ToNativeUnicode(UStringRef<Local8Bit> text);

// The name of the locale's character set, such as "UTF-8" (nl_langinfo, CODESET). One that is longer than 48 bytes
// throws ConstDataCapacityExceeded.
FixedAscii<48> IANAEncodingName(Local8Bit);

}  // namespace UnixPlatform

// A control character of ASCII: line feeds, tabs and the delete character among them.
constexpr bool IsControl(char byte) {
    return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
}

// A copy in which every control character of ASCII, line feeds and tabs among them, is a blank: for what has one line to
// show. `text` is in the local encoding, and not null.
AutoNullTerminated<char> OneLine(char const* text);

// A zero-terminated copy in the local encoding, for the toolkit. Throws what UnixPlatform::ToLocal8Bit throws.
template <class E>
AutoNullTerminated<char> MakeLocalString(UStringRef<E> text) {
    return MakeNullTerminatedString(UnixPlatform::ToLocal8Bit(text));
}
