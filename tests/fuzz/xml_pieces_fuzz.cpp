// A document gives the same events in whatever pieces it is fed: those of the plain parser.
#include "tests/fuzz/fuzz.h"
#include "xml/plain_parser.h"
#include "xml/simple_xml_parser_pl.h"

void Fuzz(std::string_view input) {
    // The bytes of the first line are the sizes of the pieces, used over and over.
    std::string const sizes = std::string(TakeUntil(input, '\n')) + '\xFF';
    Recorder expected, whole, pieces;
    PlainParser(expected).Parse(Stringy(input));
    SimpleXMLParserPL(whole).Parse(Stringy(input));
    SimpleXMLParserPL parser(pieces);
    for (std::size_t i = 0; !input.empty(); ++i) {
        std::string_view const piece = input.substr(0, static_cast<unsigned char>(sizes[i % sizes.size()]));
        parser.Parse(Stringy(piece));
        input.remove_prefix(piece.size());
    }
    Require(whole.log == expected.log && pieces.log == expected.log);
}
