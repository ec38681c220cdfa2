#pragma once

#include <algorithm>
#include <array>

#include "foundation/text/auto_ustring.h"
#include "foundation/text/local_encoding.h"
#include "localisation/format_overrides.h"
#include "localisation/format_string.h"

// Every text that the user sees comes from here.
//
// A text is written in the code in English, with variables in braces. The English text is the key under which a
// translation is looked up, and it says which argument is which variable: arguments are given in the order in which the
// variables stand in it. A translation may use them in any order, repeat or leave them out.
//
//   MakeUString(UFormat("{date} {time}").With(date, time))
//
// Formatting fails with one of the exceptions of format_string.h; a faulty translation fails and does not fall back to the
// English text. The key, the text and the arguments are views until the result is made: the caller keeps them alive.
// Main thread only.

// A key, the text to render in its place, and the arguments so far.
template <std::size_t N>
struct FormatPlusArguments {
    UStringRef<UTF8> key;
    UStringRef<UTF8> text;
    std::array<UStringRef<UTF8>, N> arguments = {};

    FormatPlusArguments(UStringRef<UTF8> english, UStringRef<UTF8> chosen) requires(N == 0)
        : key(english), text(chosen) {}
    // One argument more than `fewer`.
    FormatPlusArguments(FormatPlusArguments<N - 1> const& fewer, UStringRef<UTF8> last) requires(N > 0)
        : key(fewer.key), text(fewer.text) {
        std::copy(fewer.arguments.begin(), fewer.arguments.end(), arguments.begin());
        arguments.back() = last;
    }

    // These arguments more, in their order: each is anything that converts to UStringRef<UTF8>.
    template <class... Rest>
    auto With(UStringRef<UTF8> next, Rest const&... rest) const {
        FormatPlusArguments<N + 1> const longer(*this, next);
        if constexpr (sizeof...(rest) == 0)
            return longer;
        else
            return longer.With(rest...);
    }
};

// The key with the context's override, or the default text when it has none.
inline FormatPlusArguments<0> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultText,
                                      FormatOverrideContext const& context) {
    return {key, context.Override(key, defaultText)};
}
// The same with the global context.
inline FormatPlusArguments<0> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultText) {
    return UFormat(key, defaultText, GlobalFormatOverrideContext());
}
// The English text as its own key. Null is the empty text.
inline FormatPlusArguments<0> UFormat(char const* text) {
    return UFormat(text, text);
}

// The rendered text in UTF-8, not checked to be valid.
template <std::size_t N>
AutoUString<UTF8> MakeUString(FormatPlusArguments<N> const& format) {
    FormattedString<N> string{format.text, {}};
    MakeFormatParameterBindings(format.key, format.arguments, string.bindings);
    return MakeUString(string);
}

// The rendered text in the locale's encoding. Also throws InvalidTextEncoding, and
// UnixPlatform::WideToMultiByteConvertError for a character that the locale cannot show.
template <std::size_t N>
AutoNullTerminated<char> MakeLocalString(FormatPlusArguments<N> const& format) {
    return MakeLocalString<UTF8>(MakeUString(format));
}

// The rendered text as the platform's widgets take it: here, in the locale's encoding.
template <class Format>
AutoNullTerminated<char> MakePlatformString(Format const& format) {
    return MakeLocalString(format);
}

// Text for a widget resource, owned, in the locale's encoding.

// A fixed English text, translated. Null is the empty text. Throws as MakeLocalString does.
AutoNullTerminated<char> ControlLiteral(char const* english);
// Text that is in the locale's encoding already.
AutoNullTerminated<char> ControlLiteral(AutoNullTerminated<char> text);
// A copy of the bytes as they stand, not translated. Null is the empty text.
AutoNullTerminated<char> FunkyControlLiteral(char const* text);
