// Any bytes as UTF-8, and as UTF-16, decode the same way however they come, and what encodes again comes back.
#include "foundation/text/transcode.h"
#include "tests/fuzz/fuzz.h"

template <class E>
static void Check(UStringRef<E> text, std::string_view sizes) {
    AutoUString<UTF32> decoded;
    AutoUString<E> encoded;
    UStringBuilder<UTF32> pieces;
    GenericTranscoder<UTF32, E> transcoder(pieces);
    transcoder.Start(E());
    auto const receive = [&](auto piece) { transcoder.Receive(piece); };
    bool const decodes = Succeeds([&] { decoded = Transcode<UTF32>(text); });
    Require(Succeeds([&] { InPieces(text, sizes, receive), transcoder.ReceiveEnd(); }) == decodes);
    Require(!decodes || pieces.MakeString() == decoded);
    if (Succeeds([&] { encoded = Transcode<E>(decoded.Ref()); })) Require(Transcode<UTF32>(encoded.Ref()) == decoded);
}

void Fuzz(std::string_view input) {
    Check(Text(input), input);
    UStringBuilder<UTF16> units;
    for (auto rest = input; !rest.empty();) units.Receive(std::array{TakeInteger<std::uint16_t>(rest)});
    Check(units.Ref(), input);
}
