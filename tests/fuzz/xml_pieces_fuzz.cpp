// A document gives the same events in whatever pieces it is fed: those of the plain parser.
#include "tests/fuzz/fuzz.h"
#include "xml/plain_parser_test_support.h"
#include "xml/simple_xml_parser_pl.h"

void Fuzz(std::string_view input) {
    Recorder expected, whole, pieces;
    PlainParser(expected).Parse(Stringy(input));
    SimpleXMLParserPL(whole).Parse(Stringy(input));
    SimpleXMLParserPL parser(pieces);
    InPieces(input, input, [&](auto piece) { parser.Parse(Stringy(piece)); });
    Require(whole.log == expected.log && pieces.log == expected.log);
}
