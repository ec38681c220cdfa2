#pragma once

#include <concepts>

#include "foundation/text/auto_ustring.h"
#include "foundation/text/transcoders.h"
#include "foundation/text/ustring_builder.h"

// The stage that converts From to To.
template <class To, class From>
struct TranscoderFor {
    using Type = GenericTranscoder<To, From>;
};
template <>
struct TranscoderFor<UTF8, USAscii> {
    using Type = IntersectionTranscoder<UTF8, USAscii>;
};

// The whole of `text` in another encoding, or InvalidTextEncoding: never a part of it. Between equal encodings a plain
// copy, unchecked.
//
// To UTF-8 and UTF-16 from UTF-32 and ASCII, and to UTF-32 from all three.
template <class To, class From>
AutoUString<To> Transcode(UStringRef<From> text) {
    UStringBuilder<To> builder;
    if constexpr (std::same_as<To, From>) {
        builder.Append(text);
    } else {
        typename TranscoderFor<To, From>::Type transcoder(builder);
        transcoder.Start(From());
        transcoder.Receive({text.begin(), text.end()});
        transcoder.ReceiveEnd();
    }
    return builder.MakeString();
}
