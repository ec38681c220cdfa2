#pragma once

#include <memory>

#include "xml/xml_element.h"

// Input that has none of the form that it should have.
class FormatError : public DebuggableException {};

namespace SimpleXML {

// The tree of a whole document, by the rules of SimpleXMLParserPL and XMLTreeParser: nothing is malformed, but a
// document without any element throws FormatError. The text is not needed afterwards.
std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text);

}  // namespace SimpleXML
