#pragma once

#include <algorithm>

#include "foundation/text/transcode.h"
#include "tests/fuzz/fuzz.h"

// The text, fed to a transcoder that many units at a time.
template <class E>
AutoUString<UTF32> DecodePieces(UStringRef<E> text, std::size_t size) {
    UStringBuilder<UTF32> decoded;
    GenericTranscoder<UTF32, E> transcoder(decoded);
    transcoder.Start(E());
    for (auto at = text.begin(); at != text.end(); at += std::min(size, static_cast<std::size_t>(text.end() - at)))
        transcoder.Receive({at, std::min(size, static_cast<std::size_t>(text.end() - at))});
    transcoder.ReceiveEnd();
    return decoded.MakeString();
}

// Requires that the text decodes whole and in pieces to the same, and that what encodes again comes back.
template <class E>
void CheckDecoding(UStringRef<E> text) {
    AutoUString<UTF32> decoded, pieces;
    AutoUString<E> encoded;
    bool const decodes = Succeeds([&] { decoded = Transcode<UTF32>(text); });
    Require(Succeeds([&] { pieces = DecodePieces(text, 3); }) == decodes);
    if (!decodes) return;
    Require(pieces == decoded);
    if (Succeeds([&] { encoded = Transcode<E>(decoded.Ref()); })) Require(Transcode<UTF32>(encoded.Ref()) == decoded);
}
