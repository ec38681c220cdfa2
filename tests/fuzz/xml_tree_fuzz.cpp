// Any tree that is written parses back equal, but for the white space that a style lays it out with.
#include "foundation/text/ustring_builder.h"
#include "tests/fuzz/xml_trees.h"
#include "xml/simple_xml.h"
#include "xml/xml_writer.h"

void Fuzz(std::string_view input) {
    XMLElement const tree = TakeTree(input);
    for (unsigned style = 0; style <= 2; ++style) {
        UStringBuilder<UTF8> written;
        XMLWriter(written, XMLFormatStyle{style}).BeginDocument(EncodingDeclaration{style}).WriteXMLElement(tree);
        Require(Equal(tree, *SimpleXML::Parse(written.Ref()), style == 0 ? "\n\t" : style == 1 ? "\n" : ""));
    }
}
