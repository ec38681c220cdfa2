#pragma once

#include <utility>
#include <vector>

#include "foundation/base/null_or.h"
#include "foundation/text/shared_ustring.h"
#include "xml/simple_xml_parser_pl.h"

// The attributes of one element: an ordered map from name to value, ascending by the bytes of the names.
//
// A sorted vector: with a std::map the tree of a document of small elements takes 12.8 instead of 10.3 MiB.
class XMLAttributes {
  public:
    using Attribute = std::pair<SharedUString<UTF8>, SharedUString<UTF8>>;

    XMLAttributes() = default;
    // Of these, in any order. Of equal names the first counts.
    explicit XMLAttributes(std::vector<Attribute> attributes);

    // The value of that name.
    NullOrConstRef<SharedUString<UTF8>> Find(UStringRef<UTF8> name) const;

    // In the order of their names.
    std::vector<Attribute>::const_iterator begin() const { return attributes_.begin(); }
    std::vector<Attribute>::const_iterator end() const { return attributes_.end(); }

  private:
    std::vector<Attribute> attributes_;
};

// What a SAXParser reports, in document order; the default operations do nothing. The text is borrowed for the call
// and has not been checked to be valid UTF-8.
class XMLReceiver {
  public:
    virtual ~XMLReceiver() = default;
    // The attributes are the receiver's to keep.
    virtual void StartElement(UStringRef<UTF8> /*name*/, ResourceTransfer<XMLAttributes> /*attributes*/) {}
    virtual void EndElement() {}
    virtual void Characters(UStringRef<UTF8> /*text*/) {}
};

namespace SimpleXML {

// The parser with its events in the program's own text: names as UTF-8 strings, attributes as a map. Of attributes
// with the same name the first counts. Processing instructions are not reported.
class SAXParser : public SimpleXMLParserPL {
  public:
    // The target must outlive the parser.
    explicit SAXParser(XMLReceiver& target) : target_(target) {}

    // Feeds the next bytes of the document.
    void Parse(UStringRef<UTF8> text) { SimpleXMLParserPL::Parse(text.AsData()); }

    void StartElement(ConstData name, Attributes attributes) override;
    void EndElement(ConstData) override { target_.EndElement(); }
    void Characters(ConstData text) override { target_.Characters({text.begin(), text.end()}); }

  private:
    XMLReceiver& target_;
};

}  // namespace SimpleXML
