#pragma once

#include <memory>
#include <vector>

#include "xml/sax_parser.h"
#include "xml/xml_element.h"

// Builds the tree of a document from its events. An end closes the innermost open element, whatever its name; text
// outside every element is dropped; a second top-level element replaces the first.
class XMLTreeParser : public XMLReceiver {
  public:
    void StartElement(UStringRef<UTF8> name, ResourceTransfer<XMLAttributes> attributes) override;
    void EndElement() override;
    void Characters(UStringRef<UTF8> text) override;

    // Gives up the root built so far, null when no element was seen. What follows begins a new tree.
    std::unique_ptr<XMLElement> TakeRoot();

  private:
    std::unique_ptr<XMLElement> root_;
    // Innermost last. Each is the last child of the one before it, and an element only moves when it gets a younger
    // sibling, which is after its end; so the pointers stay good.
    std::vector<XMLElement*> open_;
};

// Input that has none of the form that it should have.
class FormatError : public DebuggableException {};

namespace SimpleXML {

// The tree of a whole document, by the rules of SimpleXMLParserPL and XMLTreeParser: nothing is malformed, but a
// document without any element throws FormatError. The text is not needed afterwards.
std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text);

}  // namespace SimpleXML
