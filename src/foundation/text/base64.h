#pragma once

#include <cstdint>

#include "foundation/base/const_data.h"

// Decodes base64 text leniently, which is meant: the 64 characters of the standard alphabet (RFC 4648) carry six bits
// each, every other byte (padding, blanks and line breaks included) is skipped, and bits left over at the end that do
// not fill a byte are dropped. No text is ever refused.
//
// The text may come in pieces, cut anywhere. Time is linear in it, whatever its size.
class Base64Decoder {
  public:
    // Appends the bytes that `text` completes to `bytes`.
    void Decode(ConstData text, Stringy& bytes);

  private:
    // The newest bits; those that wait for a byte to fill are the lowest `waiting_`, fewer than eight between calls.
    std::uint32_t bits_ = 0;
    int waiting_ = 0;
};

// The whole of `text` at once.
Stringy DecodeBase64(ConstData text);

// `bytes` in the standard alphabet, padded, in one line.
Stringy EncodeBase64(ConstData bytes);
