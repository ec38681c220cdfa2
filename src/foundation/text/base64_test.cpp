#include "foundation/text/base64.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "foundation/text/lines.h"

namespace {

Stringy Encoded(Stringy const& bytes) {
    auto alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    Stringy text;
    unsigned bits = 0, waiting = 0;
    for (char byte : bytes) {
        bits = bits << 8 | static_cast<unsigned char>(byte);
        for (waiting += 8; waiting >= 6; waiting -= 6) text += alphabet[bits >> (waiting - 6) & 63];
    }
    if (waiting) text += alphabet[bits << (6 - waiting) & 63];
    return text;
}

TEST(Base64, OnlyTheAlphabetCountsAndLeftoverBitsAreDropped) {
    for (auto text : {"TWFu", "T\r\nW\tF u", "=T=W=F=u=", "-TW_Fu", "\xFF\x80TWFu", "TWFuT", "TWFu===="})
        EXPECT_EQ(DecodeBase64(text), "Man") << text;
    for (auto text : {"TQ==", "TQ", "TQ=", "TR"}) EXPECT_EQ(DecodeBase64(text), "M") << text;
    for (auto text : {"", "T", "====", " \n"}) EXPECT_EQ(DecodeBase64(text), "") << text;
    EXPECT_EQ(DecodeBase64("TQ==TQ=="), "M\x04\xD0");
    EXPECT_EQ(DecodeBase64("+/+/"), "\xFB\xFF\xBF");
}

TEST(Base64, AnyBytesComeBackHoweverTheTextIsCutAndBroken) {
    std::mt19937 random(1);
    Stringy bytes(5000, 0);
    for (char& byte : bytes) byte = static_cast<char>(random());
    Stringy text = Encoded(bytes);
    for (std::size_t at = 0; at < text.size(); at += random() % 90) text.insert(at, random() % 2 ? "\r\n" : "\n");
    EXPECT_EQ(DecodeBase64(text), bytes);

    Base64Decoder decoder;
    Stringy decoded;
    ForEachLine(text, [&](ConstData line) { decoder.Decode(line, decoded); });
    EXPECT_EQ(decoded, bytes);
}

TEST(Lines, EachEndOfLineEndsOneAndTheLastNeedsNone) {
    struct {
        char const* text;
        std::vector<Stringy> lines;
    } const cases[] = {
        {"", {}},    {"a", {"a"}}, {"a\n", {"a"}}, {"a\r\nb", {"a", "", "b"}}, {"\n\na\rb\n", {"", "", "a", "b"}},
        {"\r", {""}}};
    for (auto const& [text, lines] : cases) {
        std::vector<Stringy> found;
        ForEachLine(text, [&](ConstData line) { found.emplace_back(line.AsStringView()); });
        EXPECT_EQ(found, lines) << text;
    }
}

}  // namespace
