#pragma once

#include <cstddef>

#include "foundation/text/encodings.h"
#include "foundation/text/stream_transcoder.h"

// The conversions between encodings, as stages of a stream.
//
// Each converts into a block of 4,096 bytes of its own, which it hands on when the next sequence might not fit and at
// the end of each Receive; a sequence that a Receive leaves incomplete waits for the next one. Whatever is not
// convertible throws InvalidTextEncoding, from ReceiveEnd when the text ends inside a sequence.
//
// Decoding is lenient and encoding strict, which is meant: text from outside is only refused when its structure is
// broken, and what could be decoded may still fail when it is encoded again.
template <class To, class From>
class GenericTranscoder;

// Passes text on unchanged between encodings that share it, after checking that it lies in what they share.
template <class To, class From>
class IntersectionTranscoder;

// Accepts overlong forms, encoded surrogates and values up to 0x1FFFFF. A byte that starts no sequence is only found out
// with the third byte after it.
template <>
class GenericTranscoder<UTF32, UTF8> : public StreamTranscoder<UTF32, UTF8> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Start(UTF8) override;
    void Receive(ConstArrayOf<UTF8::Unit> units) override;
    void ReceiveEnd() override;

  private:
    // Adds a byte to a sequence of two to four, whose code point `bits_` is once it is complete.
    bool CompletesSequence(UTF8::Unit byte);

    // The sequence under way: its length so far (three at most between calls, 0 for none), its first byte, whether all
    // the others were continuation bytes, and the bits of all, six from each but the first.
    unsigned count_ = 0;
    UTF8::Unit lead_ = 0;
    bool intact_ = true;
    UTF32::Unit bits_ = 0;
};

// A unit in 0xD800 to 0xDFFF must be a high surrogate followed by a low one.
template <>
class GenericTranscoder<UTF32, UTF16> : public StreamTranscoder<UTF32, UTF16> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Start(UTF16) override;
    void Receive(ConstArrayOf<UTF16::Unit> units) override;
    void ReceiveEnd() override;

  private:
    // The high surrogate that waits for its low one, or 0.
    UTF16::Unit high_ = 0;
};

// Writes the shortest form; refuses 0xD800 to 0xDFFF and values from 0x110000 up.
template <>
class GenericTranscoder<UTF8, UTF32> : public StreamTranscoder<UTF8, UTF32> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Receive(ConstArrayOf<UTF32::Unit> units) override;
};

// Writes a surrogate pair from 0x10000 up; refuses 0xD800 to 0xDFFF and values from 0x110000 up.
template <>
class GenericTranscoder<UTF16, UTF32> : public StreamTranscoder<UTF16, UTF32> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Receive(ConstArrayOf<UTF32::Unit> units) override;
};

// Refuses bytes from 0x80 up.
template <>
class GenericTranscoder<UTF16, USAscii> : public StreamTranscoder<UTF16, USAscii> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Receive(ConstArrayOf<USAscii::Unit> units) override;
};

// Refuses bytes from 0x80 up.
template <>
class IntersectionTranscoder<UTF8, USAscii> : public StreamTranscoder<UTF8, USAscii> {
  public:
    using StreamTranscoder::StreamTranscoder;
    void Receive(ConstArrayOf<USAscii::Unit> units) override;
};
