#include "foundation/text/base64.h"

#include <array>
#include <string_view>

namespace {

constexpr unsigned char kNoValue = 64;

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<unsigned char, 256> MakeValues() {
    std::array<unsigned char, 256> values{};
    values.fill(kNoValue);
    unsigned char next = 0;
    for (char character : kAlphabet) values[static_cast<unsigned char>(character)] = next++;
    return values;
}
constexpr auto kValues = MakeValues();

}  // namespace

void Base64Decoder::Decode(ConstData text, Stringy& bytes) {
    for (unsigned char character : text) {
        unsigned char value = kValues[character];
        if (value == kNoValue) continue;
        bits_ = bits_ << 6 | value;
        waiting_ += 6;
        if (waiting_ < 8) continue;
        waiting_ -= 8;
        bytes += static_cast<char>(bits_ >> waiting_ & 0xFF);
    }
}

Stringy DecodeBase64(ConstData text) {
    Stringy bytes;
    bytes.reserve(text.size() / 4 * 3 + 3);
    Base64Decoder().Decode(text, bytes);
    return bytes;
}

Stringy EncodeBase64(ConstData bytes) {
    Stringy text;
    text.reserve(bytes.size() / 3 * 4 + 4);
    std::uint32_t bits = 0;
    unsigned waiting = 0;
    auto emit = [&](std::uint32_t value) { text += kAlphabet[value & 0x3F]; };
    for (unsigned char byte : bytes) {
        bits = bits << 8 | byte;
        waiting += 8;
        while (waiting >= 6) {
            waiting -= 6;
            emit(bits >> waiting);
        }
    }
    if (waiting > 0) emit(bits << (6 - waiting));
    text.append((4 - text.size() % 4) % 4, '=');
    return text;
}
