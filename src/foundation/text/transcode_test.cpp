#include "foundation/text/transcode.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <vector>

namespace {

template <class E>
using Units = std::vector<typename E::Unit>;

// The text converted in two pieces, after its first piece was begun with and left; null when it is refused.
template <class To, class From>
std::optional<Units<To>> ConvertSplit(Units<From> const& text, std::size_t split) try {
    UStringBuilder<To> converted;
    typename TranscoderFor<To, From>::Type transcoder(converted);
    transcoder.Start(From());
    transcoder.Receive({text.data(), split});
    auto const left = static_cast<std::ptrdiff_t>(converted.Ref().size());
    transcoder.Start(From());
    transcoder.Receive({text.data(), split});
    transcoder.Receive({text.data() + split, text.size() - split});
    transcoder.ReceiveEnd();
    return Units<To>(converted.Ref().begin() + left, converted.Ref().end());
} catch (InvalidTextEncoding const&) {
    return {};
}

template <class To, class From>
void Expect(std::optional<Units<To>> const& to, std::initializer_list<Units<From>> texts) {
    for (auto const& text : texts)
        for (std::size_t split = 0; split <= text.size(); ++split)
            EXPECT_EQ((ConvertSplit<To, From>(text, split)), to) << testing::PrintToString(text) << " cut at " << split;
}

TEST(Transcode, UTF8DecodesLenientlyOrIsRefusedWhereverItIsCut) {
    auto expect = Expect<UTF32, UTF8>;
    expect({{0, 0x41, 0x7F}}, {{0, 0x41, 0x7F}, {0xC0, 0x80, 0x41, 0x7F}, {0xE0, 0x80, 0x80, 0xC1, 0x81, 0x7F}});
    expect({{0x80, 0x7FF, 0x800, 0xFFFF}}, {{0xC2, 0x80, 0xDF, 0xBF, 0xE0, 0xA0, 0x80, 0xEF, 0xBF, 0xBF}});
    expect({{0xD800, 0x110000}}, {{0xED, 0xA0, 0x80, 0xF4, 0x90, 0x80, 0x80}});
    expect({{0, 0x1F600, 0x1FFFFF}}, {{0xF0, 0x80, 0x80, 0x80, 0xF0, 0x9F, 0x98, 0x80, 0xF7, 0xBF, 0xBF, 0xBF}});
    expect({}, {{0x80}, {0xC3}, {0xE2, 0x82}, {0x41, 0xF0, 0x9F, 0x98}, {0xC3, 0x41, 0x41, 0x41}});
    expect({},
           {{0x80, 0x80, 0x80, 0x80}, {0xE2, 0x41, 0x82, 0xAC}, {0xF0, 0x9F, 0x98, 0x41}, {0xFF, 0x41, 0x41, 0x41}});
}

TEST(Transcode, UTF16PairsItsSurrogatesOrIsRefused) {
    Expect<UTF32, UTF16>({{0xD7FF, 0xE000, 0x1F600, 0x10FFFF}}, {{0xD7FF, 0xE000, 0xD83D, 0xDE00, 0xDBFF, 0xDFFF}});
    Expect<UTF32, UTF16>({}, {{0xDC00}, {0xD800}, {0xD800, 0x41}, {0xD800, 0xD800, 0xDC00}, {0xDC00, 0xD800}});
}

TEST(Transcode, EncodersWriteTheShortestFormAndRefuseWhatHasNone) {
    Expect<UTF8, UTF32>({{0, 0x7F, 0xC2, 0x80, 0xDF, 0xBF}}, {{0, 0x7F, 0x80, 0x7FF}});
    Expect<UTF8, UTF32>({{0xE0, 0xA0, 0x80, 0xEF, 0xBF, 0xBF}}, {{0x800, 0xFFFF}});
    Expect<UTF8, UTF32>({{0xF0, 0x90, 0x80, 0x80, 0xF4, 0x8F, 0xBF, 0xBF}}, {{0x10000, 0x10FFFF}});
    Expect<UTF16, UTF32>({{0xFFFF, 0xD800, 0xDC00, 0xDBFF, 0xDFFF}}, {{0xFFFF, 0x10000, 0x10FFFF}});
    for (UTF32::Unit code : {0xD800u, 0xDFFFu, 0x110000u, 0x1FFFFFu, 0xFFFFFFFFu}) {
        Expect<UTF8, UTF32>({}, {{0x41, code}});
        Expect<UTF16, UTF32>({}, {{0x41, code}});
    }
    Expect<UTF8, USAscii>({}, {{0x31, 0x80}});
}

TEST(Transcode, TextLongerThanABlockArrivesWhole) {
    Stringy euros;
    for (int i = 0; i < 3000; ++i) euros += "\xE2\x82\xAC";
    EXPECT_EQ(Transcode<UTF8>(Transcode<UTF32>(UStringRef<UTF8>(euros)).Ref()).AsStringView(), euros);
}

}  // namespace
