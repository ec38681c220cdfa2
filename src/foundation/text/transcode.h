#pragma once

#include <concepts>
#include <cstddef>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/ustring_builder.h"
#include "foundation/text/ustring_ref.h"

// Text is not valid in the encoding it is said to be in, or holds a code point that the target encoding has no form for.
class InvalidTextEncoding : public DebuggableException {};

// The common base of the transcoders: takes text in From and hands it on, piece by piece, to a receiver of To.
//
// The receiver is borrowed and must outlive the transcoder. What was handed to it before an InvalidTextEncoding is not
// withdrawn; the transcoder can then be used again from Start. Used by one thread at a time.
template <class To, class From>
class StreamTranscoder : public UTextReceiver<From> {
  public:
    explicit StreamTranscoder(UTextReceiver<To>& receiver) : receiver_(receiver) {}

    void Start(From) override { receiver_.Start(To()); }
    void ReceiveEnd() override { receiver_.ReceiveEnd(); }

  protected:
    UTextReceiver<To>& Receiver() { return receiver_; }

  private:
    UTextReceiver<To>& receiver_;
};

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
