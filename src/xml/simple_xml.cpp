#include "xml/simple_xml.h"

void XMLTreeParser::StartElement(UStringRef<UTF8> name, ResourceTransfer<XMLAttributes> attributes) {
    if (open_.empty()) {
        root_ = std::make_unique<XMLElement>(SharedUString<UTF8>(name), std::move(attributes));
        open_.push_back(root_.get());
    } else {
        open_.push_back(&open_.back()->AddChildElement(SharedUString<UTF8>(name), std::move(attributes)));
    }
}

void XMLTreeParser::EndElement() {
    if (!open_.empty()) open_.pop_back();
}

void XMLTreeParser::Characters(UStringRef<UTF8> text) {
    if (!open_.empty()) open_.back()->AppendCharacters(text);
}

std::unique_ptr<XMLElement> XMLTreeParser::TakeRoot() {
    open_.clear();
    return std::move(root_);
}

namespace SimpleXML {

std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text) {
    XMLTreeParser tree;
    SAXParser(tree).Parse(text);
    auto root = tree.TakeRoot();
    if (!root) throw FormatError();
    return root;
}

}  // namespace SimpleXML
