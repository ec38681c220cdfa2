// Any tree that is written parses back equal, but for the white space that a style lays it out with.
#include "foundation/text/ustring_builder.h"
#include "tests/fuzz/fuzz.h"
#include "xml/simple_xml.h"
#include "xml/xml_writer.h"

// Takes a byte off the front of the input, and makes a well-formed name of it.
static std::string TakeName(std::string_view& input) {
    return {'n', "abcdefgh"[TakeInteger<unsigned char>(input) & 7]};
}

// Takes a tree: a name, how many attributes, their names and values; then "<" and a child, or "=" and text, till anything
// else. Values and texts end in "|".
static XMLElement TakeTree(std::string_view& input) {
    auto const name = TakeName(input);
    std::vector<XMLAttributes::Attribute> attributes;
    for (int left = TakeInteger<unsigned char>(input) & 3; left > 0; --left) {
        auto const attribute = TakeName(input);
        attributes.emplace_back(Text(attribute), Text(TakeUntil(input, '|')));
    }
    XMLElement tree{Text(name), XMLAttributes(attributes)};
    for (char step; (step = TakeInteger<char>(input)) == '<' || step == '=';) {
        if (step == '<') tree.AddChildElement(TakeTree(input));
        if (step == '=') tree.AppendCharacters(Text(TakeUntil(input, '|')));
    }
    return tree;
}

// Whether two trees are the same. In the second, a text may end in characters of `layout`.
static bool Equal(XMLElement const& tree, XMLElement const& read, char const* layout) {
    auto const text = tree.GetValue().AsStringView(), found = read.GetValue().AsStringView();
    return tree.Name() == read.Name() && std::ranges::equal(tree.Attributes(), read.Attributes()) &&
           found.starts_with(text) && found.find_first_not_of(layout, text.size()) == found.npos &&
           std::ranges::equal(tree.Children(), read.Children(),
                              [&](auto& one, auto& other) { return Equal(one, other, layout); });
}

void Fuzz(std::string_view input) {
    XMLElement const tree = TakeTree(input);
    for (unsigned style = 0; style <= 2; ++style) {
        UStringBuilder<UTF8> written;
        XMLWriter(written, XMLFormatStyle{style}).BeginDocument(EncodingDeclaration{style}).WriteXMLElement(tree);
        Require(Equal(tree, *SimpleXML::Parse(written.Ref()), style == 0 ? "\n\t" : style == 1 ? "\n" : ""));
    }
}
