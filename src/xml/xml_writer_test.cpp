#include "xml/xml_writer.h"

#include <gtest/gtest.h>

#include "foundation/text/ustring_builder.h"

namespace {

TEST(XMLWriter, IndentsElementsButNotTexts) {
    UStringBuilder<UTF8> builder;
    XMLWriter writer(builder, XMLFormatStyle::Indented);
    writer.BeginDocument(EncodingDeclaration::WithEncoding).BeginElement("a").BeginElement("b").BeginElement("c");
    writer.WriteString("t").EndElement().BeginElement("d").EndElement().EndElement().WriteString("u");
    writer.WriteCData("v").BeginElement("e").WriteString("").EndDocument();
    EXPECT_EQ(builder.Ref().AsStringView(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n\t<b>\n\t\t<c>t</c>\n\t\t<d></d>\n\t</b>\n"
              "u<![CDATA[v]]>\n\t<e></e>\n</a>");
}

TEST(XMLWriter, EscapesTheQuoteInAttributesOnlyAndLineBreaksWhenAsked) {
    UStringBuilder<UTF8> builder;
    XMLWriter writer(builder, XMLFormatStyle::Compact);
    writer.BeginElement("a").AddAttribute("k", "\"<&>'\r\n\xC3\xA9").WriteString("<\"&\"'>\r\n\xC3\xA9").EndElement();
    writer.escape_line_breaks = true;
    writer.BeginElement("b").AddAttribute("k", "\r\n").WriteString("\r\n").EndDocument();
    EXPECT_EQ(builder.Ref().AsStringView(),
              "<a k=\"&quot;&lt;&amp;&gt;'\r\n\xC3\xA9\">&lt;\"&amp;\"'&gt;\r\n\xC3\xA9</a>"
              "<b k=\"&#xd;&#xa;\">&#xd;&#xa;</b>");
}

}  // namespace
