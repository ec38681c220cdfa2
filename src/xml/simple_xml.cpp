#include "xml/simple_xml.h"

#include "xml/sax_parser.h"
#include "xml/xml_tree_parser.h"

namespace SimpleXML {

std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text) {
    XMLTreeParser tree;
    SAXParser(tree).Parse(text);
    auto root = tree.TakeRoot();
    if (!root) throw FormatError();
    return root;
}

}  // namespace SimpleXML
