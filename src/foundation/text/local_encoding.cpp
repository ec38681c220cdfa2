#include "foundation/text/local_encoding.h"

#include <langinfo.h>

#include <cstdlib>
#include <vector>

#include "foundation/text/transcode.h"

static_assert(sizeof(wchar_t) == sizeof(UTF32::Unit), "a wide character is a code point");

namespace {

// The input may not end in a zero: the C library needs a copy that does.
template <class Unit, class Source>
std::vector<Unit> Terminated(Source const& text) {
    std::vector<Unit> copy(text.size() + 1);
    std::copy(text.begin(), text.end(), copy.begin());
    return copy;
}

// Measures with `convert`, then converts. The result is as long as the second pass says, never longer than measured.
template <class Error, class To, class From>
std::vector<To> Converted(std::size_t (*convert)(To*, From const*, std::size_t), std::vector<From> const& text) {
    constexpr auto kFailed = static_cast<std::size_t>(-1);
    auto size = convert(nullptr, text.data(), 0);
    if (size == kFailed) throw Error();
    std::vector<To> result(size + 1);
    size = convert(result.data(), text.data(), size);
    if (size == kFailed) throw Error();
    result.resize(size);
    return result;
}

}  // namespace

namespace UnixPlatform {

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF8> text) {
    return FromNativeUnicode(Transcode<UTF32>(text));
}

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF16> text) {
    return FromNativeUnicode(Transcode<UTF32>(text));
}

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF32> text) {
    return FromNativeUnicode(text);
}

AutoUString<UTF8> ToUTF8(UStringRef<Local8Bit> text) {
    return Transcode<UTF8>(ToNativeUnicode(text).Ref());
}

AutoUString<UTF16> ToUTF16(UStringRef<Local8Bit> text) {
    return Transcode<UTF16>(ToNativeUnicode(text).Ref());
}

AutoUString<UTF32> ToUTF32(UStringRef<Local8Bit> text) {
    return ToNativeUnicode(text);
}

AutoUString<Local8Bit> FromNativeUnicode(UStringRef<UTF32> text) {
    auto bytes = Converted<WideToMultiByteConvertError>(std::wcstombs, Terminated<wchar_t>(text));
    return MakeUString(bytes.data(), bytes.data() + bytes.size(), Local8Bit());
}

AutoUString<UTF32> ToNativeUnicode(UStringRef<Local8Bit> text) {
    auto wide = Converted<MultiByteToWideConvertError>(std::mbstowcs, Terminated<char>(text));
    auto codes = Terminated<UTF32::Unit>(wide);
    return MakeUString(codes.data(), codes.data() + wide.size(), UTF32());
}

FixedAscii<48> IANAEncodingName(Local8Bit) {
    return FixedAscii<48>(nl_langinfo(CODESET));
}

}  // namespace UnixPlatform

AutoNullTerminated<char> OneLine(char const* text) {
    Stringy line = text;
    for (char& byte : line)
        if (IsControl(byte)) byte = ' ';
    return {line.data(), line.data() + line.size()};
}
