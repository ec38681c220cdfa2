#include "foundation/text/transcoded_block.h"
#include "foundation/text/transcoders.h"

namespace {

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
