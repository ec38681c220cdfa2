// A document gives the same events whole and in whatever pieces it is fed.
#include "tests/fuzz/fuzz.h"
#include "xml/recorder_test_support.h"

void Fuzz(std::string_view input) {
    Recorder whole, pieces;
    SimpleXMLParserPL(whole).Parse(input);
    SimpleXMLParserPL parser(pieces);
    InPieces(input, input, [&](auto piece) { parser.Parse(piece); });
    Require(whole.log == pieces.log);
}
