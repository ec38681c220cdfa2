// Text decodes whole or in pieces to the same; what decodes and encodes again comes back.
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
    AutoUString<Local8Bit> local, back;
    if (!Succeeds([&] { local = UnixPlatform::ToLocal8Bit(Text(input)); })) return;
    if (Succeeds([&] { back = UnixPlatform::ToLocal8Bit(UnixPlatform::ToUTF8(local.Ref()).Ref()); }))
        Require(back == local);
}
