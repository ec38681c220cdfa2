#include <utility>

#include "foundation/text/transcoded_block.h"
#include "foundation/text/transcoders.h"

namespace {

// The sequences of two, three and four bytes: how the first byte begins, and the bits that the code point has.
struct SequenceForm {
    UTF8::Unit lead_mask, lead;
    UTF32::Unit value_mask;
};
constexpr SequenceForm sequence_forms[] = {{0xE0, 0xC0, 0x7FF}, {0xF0, 0xE0, 0xFFFF}, {0xF8, 0xF0, 0x1FFFFF}};

bool IsHighSurrogate(UTF16::Unit unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(UTF16::Unit unit) {
    return (unit & 0xFC00) == 0xDC00;
}

}  // namespace

void GenericTranscoder<UTF32, UTF8>::Start(UTF8 encoding) {
    count_ = 0;
    StreamTranscoder::Start(encoding);
}

void GenericTranscoder<UTF32, UTF8>::Receive(ConstArrayOf<UTF8::Unit> units) {
    TranscodeEach<1>(units, Receiver(), [this](auto& block, UTF8::Unit byte) {
        if (count_ == 0 && byte < 0x80) {
            block.Put(byte);
        } else if (CompletesSequence(byte)) {
            block.Put(bits_);
        }
    });
}

bool GenericTranscoder<UTF32, UTF8>::CompletesSequence(UTF8::Unit byte) {
    if (count_ == 0) {
        bits_ = lead_ = byte;
        intact_ = true;
        count_ = 1;
        return false;
    }
    bits_ = bits_ << 6 | (byte & 0x3F);
    intact_ = intact_ && (byte & 0xC0) == 0x80;
    auto const& form = sequence_forms[count_ - 1];
    bool complete = intact_ && (lead_ & form.lead_mask) == form.lead;
    bool last = ++count_ == 4;
    if (!complete && !last) return false;
    count_ = 0;
    if (!complete) throw InvalidTextEncoding();
    bits_ &= form.value_mask;
    return true;
}

void GenericTranscoder<UTF32, UTF8>::ReceiveEnd() {
    if (std::exchange(count_, 0) != 0) throw InvalidTextEncoding();
    StreamTranscoder::ReceiveEnd();
}

void GenericTranscoder<UTF32, UTF16>::Start(UTF16 encoding) {
    high_ = 0;
    StreamTranscoder::Start(encoding);
}

void GenericTranscoder<UTF32, UTF16>::Receive(ConstArrayOf<UTF16::Unit> units) {
    TranscodeEach<1>(units, Receiver(), [this](auto& block, UTF16::Unit unit) {
        bool wanted_low = high_ != 0;
        if (IsLowSurrogate(unit) != wanted_low) throw InvalidTextEncoding();
        if (wanted_low) {
            block.Put(0x10000u + ((high_ & 0x3FFu) << 10 | (unit & 0x3FFu)));
            high_ = 0;
        } else if (IsHighSurrogate(unit)) {
            high_ = unit;
        } else {
            block.Put(unit);
        }
    });
}

void GenericTranscoder<UTF32, UTF16>::ReceiveEnd() {
    if (std::exchange(high_, 0) != 0) throw InvalidTextEncoding();
    StreamTranscoder::ReceiveEnd();
}
