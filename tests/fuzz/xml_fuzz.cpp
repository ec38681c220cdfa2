// A document gives the same events whole and in pieces. A tree of it that has names that anyone may use is written and
// read back as it is.
#include "foundation/text/ascii.h"
#include "foundation/text/ustring_builder.h"
#include "tests/fuzz/fuzz.h"
#include "xml/recorder_test_support.h"
#include "xml/simple_xml.h"
#include "xml/xml_writer.h"

static bool Equal(XMLElement const& one, XMLElement const& other) {
    return one.Name() == other.Name() && one.GetValue() == other.GetValue() &&
           std::ranges::equal(one.Attributes(), other.Attributes()) &&
           std::ranges::equal(one.Children(), other.Children(), Equal);
}

static bool IsPlain(XMLElement const& element) {
    auto plain = [](Text name) {
        return !name.empty() && std::ranges::all_of(name.AsStringView(), Ascii::Alphanumeric_);
    };
    return plain(element.Name()) && std::ranges::all_of(element.Children(), IsPlain) &&
           std::ranges::all_of(element.Attributes(), [&](auto& pair) { return plain(pair.first); });
}

void Fuzz(std::string_view input) {
    Recorder whole, pieces;
    SimpleXMLParserPL(whole).Parse(input);
    SimpleXMLParserPL parser(pieces);
    InPieces(input, input, [&](auto piece) { parser.Parse(piece); });
    Require(whole.log == pieces.log);
    std::unique_ptr<XMLElement> tree;
    if (!Succeeds([&] { tree = SimpleXML::Parse(Text(input)); }) || !IsPlain(*tree)) return;
    UStringBuilder<UTF8> written;
    XMLWriter(written, XMLFormatStyle::Compact).WriteXMLElement(*tree);
    Require(Equal(*tree, *SimpleXML::Parse(written.Ref())));
}
