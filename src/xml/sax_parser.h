#pragma once

#include "xml/simple_xml_parser_pl.h"
#include "xml/xml_receiver.h"

namespace SimpleXML {

// The parser with its events in the program's own text: names as UTF-8 strings, attributes as a map. Of attributes
// with the same name the first counts. Processing instructions are not reported.
class SAXParser : public SimpleXMLParserPL {
  public:
    // The target must outlive the parser.
    explicit SAXParser(XMLReceiver& target) : target_(target) {}

    // Feeds the next bytes of the document.
    void Parse(UStringRef<UTF8> text) {
        auto bytes = text.AsStringView();
        Feed(bytes.data(), bytes.data() + bytes.size());
    }

    void StartElement(ConstData name, Attributes attributes) override;
    void EndElement(ConstData) override { target_.EndElement(); }
    void Characters(ConstData text) override { target_.Characters({text.begin(), text.end()}); }

  private:
    XMLReceiver& target_;
    std::vector<XMLAttributePair const*> sorted_;  // by name, and equal names in document order
};

}  // namespace SimpleXML
