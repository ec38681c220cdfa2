// Bytes survive base64; any text decodes, and in pieces to the same.
#include "foundation/text/base64.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    Require(DecodeBase64(EncodeBase64(input)) == input);
    Stringy const decoded = DecodeBase64(input);
    Require(DecodeBase64(EncodeBase64(decoded)) == decoded);
    Base64Decoder decoder;
    Stringy pieces;
    for (auto rest = input; !rest.empty(); decoder.Decode("", pieces)) {
        auto const size = std::min<std::size_t>(rest.size(), 1 + (rest[0] & 15));
        decoder.Decode(rest.substr(0, size), pieces);
        rest.remove_prefix(size);
    }
    Require(pieces == decoded);
}
