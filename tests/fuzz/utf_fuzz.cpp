// Text decodes whole or in pieces to the same, and as the C library decodes it; what encodes again comes back.
#include <algorithm>
#include <clocale>
#include <vector>

#include "foundation/text/local_encoding.h"
#include "foundation/text/transcode.h"
#include "tests/fuzz/fuzz.h"

template <class E>
static AutoUString<UTF32> DecodePieces(UStringRef<E> text, std::size_t size) {
    UStringBuilder<UTF32> decoded;
    GenericTranscoder<UTF32, E> transcoder(decoded);
    transcoder.Start(E());
    for (auto at = text.begin(); at != text.end(); at += std::min(size, static_cast<std::size_t>(text.end() - at)))
        transcoder.Receive({at, std::min(size, static_cast<std::size_t>(text.end() - at))});
    transcoder.ReceiveEnd();
    return decoded.MakeString();
}

template <class E>
static void CheckDecoding(UStringRef<E> text) {
    AutoUString<UTF32> decoded, pieces;
    AutoUString<E> encoded;
    bool const decodes = Succeeds([&] { decoded = Transcode<UTF32>(text); });
    Require(Succeeds([&] { pieces = DecodePieces(text, 3); }) == decodes);
    if (!decodes) return;
    Require(pieces == decoded);
    if (Succeeds([&] { encoded = Transcode<E>(decoded.Ref()); })) Require(Transcode<UTF32>(encoded.Ref()) == decoded);
}

void Fuzz(std::string_view input) {
    static bool const has_locale = std::setlocale(LC_CTYPE, "C.UTF-8");
    Require(has_locale);
    CheckDecoding(Text(input));
    std::vector<std::uint16_t> units;
    for (auto rest = input; !rest.empty();) units.push_back(TakeInteger<std::uint16_t>(rest));
    CheckDecoding(UStringRef<UTF16>(units.data(), units.data() + units.size()));
    AutoUString<UTF32> native;
    std::string_view const text = input.substr(0, input.find('\0'));
    UStringRef<Local8Bit> const local(text.data(), text.data() + text.size());
    if (!Succeeds([&] { native = UnixPlatform::ToNativeUnicode(local); })) return;
    if (std::any_of(native.begin(), native.end(), [](UTF32::Unit unit) { return unit > 0x10FFFF; })) return;
    Require(Transcode<UTF32>(Text(text)) == native && UnixPlatform::FromNativeUnicode(native).Ref() == local);
}
