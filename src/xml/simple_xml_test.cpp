#include "xml/simple_xml.h"

#include <gtest/gtest.h>

#include "foundation/text/ustring_builder.h"
#include "xml/xml_writer.h"

namespace {

std::string Text(XMLElement const& element) {
    UStringBuilder<UTF8> builder;
    XMLWriter(builder, XMLFormatStyle::Compact).WriteXMLElement(element);
    return std::string(builder.Ref().AsStringView());
}

std::string Reparsed(std::string const& document) {
    return Text(*SimpleXML::Parse(UStringRef<UTF8>(document)));
}

TEST(SimpleXML, BuildsTheTreeOfWhateverItIsGiven) {
    std::pair<char const*, char const*> const cases[] = {
        {"<?xml version='1.0'?>\n<a>\n <b>x</b>\n</a>\n", "<a>\n \n<b>x</b></a>"},
        {"<a z='1' kk='4' k='2' z='3' \xC3='5'>", "<a k=\"2\" kk=\"4\" z=\"1\" \xC3=\"5\"></a>"},
        {"<a b='1' b='2'>", "<a b=\"1\"></a>"},
        {"<a>one</a><b>two</b>", "<b>two</b>"},
        {"</x></x><a><b></z>t</a><c>", "<c></c>"},
        {"<a>1&lt;2<b>x</b>&amp;<![CDATA[<c>]]><d></a>", "<a>1&lt;2&amp;&lt;c&gt;<b>x</b><d></d></a>"},
    };
    for (auto [document, tree] : cases) EXPECT_EQ(Reparsed(document), tree) << document;
    for (auto nothing : {"", "text", "<?xml version='1.0'?>", "<!-- <a> -->", "<a/>", "<a"})
        EXPECT_THROW(SimpleXML::Parse(nothing), FormatError) << nothing;
}

TEST(SimpleXML, FindsTheFirstChildOfANameAndWhatIsAbsentThrows) {
    auto root = SimpleXML::Parse("<a k='1' z='2'><b>x</b><c></c><b>y</b></a>");
    EXPECT_EQ(root->GetChildElement("b").GetValue(), UStringRef<UTF8>("x"));
    EXPECT_EQ(root->GetAttribute("z"), UStringRef<UTF8>("2"));
    EXPECT_THROW(root->GetChildElement("B"), NoSuchChildElement);
    EXPECT_THROW(root->GetAttribute("m"), NoSuchAttribute);
}

TEST(SimpleXML, HandlesAsManyLevelsAsAFrameHolds) {
    constexpr std::size_t levels = (2 << 20) / 3;
    std::string opening;
    for (std::size_t i = 0; i < levels; ++i) opening += "<a>";
    auto root = SimpleXML::Parse(UStringRef<UTF8>(opening));
    auto copy = *root;
    root.reset();
    EXPECT_EQ(Text(copy).size(), levels * 7);
    copy = XMLElement(copy.Children().front());
    EXPECT_EQ(Text(copy).size(), (levels - 1) * 7);
}

}  // namespace
