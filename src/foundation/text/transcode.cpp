#include "foundation/text/transcode.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "foundation/text/ustring_builder.h"

namespace {

// The block of 4,096 bytes that a transcoder collects its output in before handing it on.
//
// Output that was not flushed is dropped with the block: nothing is handed on while an exception passes.
template <class E>
class TranscodedBlock {
  public:
    explicit TranscodedBlock(UTextReceiver<E>& receiver) : receiver_(receiver) {}

    void Put(std::uint32_t unit) { units_[size_++] = static_cast<typename E::Unit>(unit); }

    // Makes sure that `units` more can be put.
    void MakeRoom(std::size_t units) {
        if (size_ + units > kCapacity) Flush();
    }
    void Flush() {
        if (size_ == 0) return;
        receiver_.Receive({units_, std::exchange(size_, 0)});
    }

  private:
    static constexpr std::size_t kCapacity = 4096 / sizeof(typename E::Unit);

    UTextReceiver<E>& receiver_;
    std::size_t size_ = 0;
    typename E::Unit units_[kCapacity];
};

// Calls put(block, unit) for each of `units` and hands the output on. One call puts at most `Longest` units.
template <std::size_t Longest, class E, class Unit, class Put>
void TranscodeEach(std::span<Unit const> units, UTextReceiver<E>& receiver, Put put) {
    TranscodedBlock<E> block(receiver);
    for (Unit unit : units) {
        block.MakeRoom(Longest);
        put(block, unit);
    }
    block.Flush();
}

// The sequences of two, three and four bytes: how the first byte begins, and the bits that the code point has.
struct SequenceForm {
    UTF8::Unit lead_mask, lead;
    UTF32::Unit value_mask;
};
constexpr SequenceForm kSequenceForms[] = {{0xE0, 0xC0, 0x7FF}, {0xF0, 0xE0, 0xFFFF}, {0xF8, 0xF0, 0x1FFFFF}};

bool IsHighSurrogate(UTF16::Unit unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(UTF16::Unit unit) {
    return (unit & 0xFC00) == 0xDC00;
}

void RequireEncodable(UTF32::Unit code) {
    if ((code >= 0xD800 && code <= 0xDFFF) || code >= 0x110000) throw InvalidTextEncoding();
}

UTF32::Unit Continuation(UTF32::Unit bits) {
    return 0x80 | (bits & 0x3F);
}

void PutUTF8(TranscodedBlock<UTF8>& block, UTF32::Unit code) {
    RequireEncodable(code);
    if (code < 0x80) return block.Put(code);
    if (code < 0x800) {
        block.Put(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        block.Put(0xE0 | code >> 12);
        block.Put(Continuation(code >> 6));
    } else {
        block.Put(0xF0 | code >> 18);
        block.Put(Continuation(code >> 12));
        block.Put(Continuation(code >> 6));
    }
    block.Put(Continuation(code));
}

void PutUTF16(TranscodedBlock<UTF16>& block, UTF32::Unit code) {
    RequireEncodable(code);
    if (code < 0x10000) return block.Put(code);
    block.Put(0xD800 + ((code - 0x10000) >> 10));
    block.Put(0xDC00 + ((code - 0x10000) & 0x3FF));
}

template <class To>
void PutAscii(TranscodedBlock<To>& block, USAscii::Unit byte) {
    if (byte >= 0x80) throw InvalidTextEncoding();
    block.Put(byte);
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
    auto const& form = kSequenceForms[count_ - 1];
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

void GenericTranscoder<UTF8, UTF32>::Receive(ConstArrayOf<UTF32::Unit> units) {
    TranscodeEach<4>(units, Receiver(), PutUTF8);
}

void GenericTranscoder<UTF16, UTF32>::Receive(ConstArrayOf<UTF32::Unit> units) {
    TranscodeEach<2>(units, Receiver(), PutUTF16);
}

void GenericTranscoder<UTF16, USAscii>::Receive(ConstArrayOf<USAscii::Unit> units) {
    TranscodeEach<1>(units, Receiver(), PutAscii<UTF16>);
}

void IntersectionTranscoder<UTF8, USAscii>::Receive(ConstArrayOf<USAscii::Unit> units) {
    TranscodeEach<1>(units, Receiver(), PutAscii<UTF8>);
}
