// Bytes survive base64; any text decodes, and in pieces to the same.
#include "foundation/text/base64.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    Require(DecodeBase64(EncodeBase64(input)) == input);
    Stringy const decoded = DecodeBase64(input);
    Require(DecodeBase64(EncodeBase64(decoded)) == decoded);
    Base64Decoder decoder;
    Stringy pieces;
    InPieces(input, input, [&](auto piece) { decoder.Decode(piece, pieces); });
    Require(pieces == decoded);
}
