#include "xml/xml_writer.h"

#include <gtest/gtest.h>

#include <functional>

#include "foundation/text/ustring_builder.h"

namespace {

std::string Written(XMLFormatStyle style, std::function<void(XMLWriter&)> const& write) {
    UStringBuilder<UTF8> builder;
    XMLWriter writer(builder, style);
    write(writer);
    writer.EndDocument();
    return std::string(builder.Ref().AsStringView());
}

TEST(XMLWriter, BreaksAndIndentsLinesByItsStyle) {
    auto write = [](XMLWriter& writer) {
        writer.BeginDocument(EncodingDeclaration::WithEncoding).BeginElement("a").BeginElement("b").BeginElement("c");
        writer.WriteString("t").EndElement().BeginElement("d").EndElement().EndElement().WriteString("u");
        writer.WriteCData("v").BeginElement("e").WriteString("");
    };
    std::string const declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    EXPECT_EQ(Written(XMLFormatStyle::Indented, write),
              declaration + "\n<a>\n\t<b>\n\t\t<c>t</c>\n\t\t<d></d>\n\t</b>\nu<![CDATA[v]]>\n\t<e></e>\n</a>");
    EXPECT_EQ(Written(XMLFormatStyle::LineBreaks, write),
              declaration + "\n<a>\n<b>\n<c>t</c>\n<d></d>\n</b>\nu<![CDATA[v]]>\n<e></e>\n</a>");
    for (auto compact : {XMLFormatStyle::Compact, XMLFormatStyle(7)})
        EXPECT_EQ(Written(compact, write), declaration + "<a><b><c>t</c><d></d></b>u<![CDATA[v]]><e></e></a>");
}

TEST(XMLWriter, BeginsWithALineFeedWhenThereIsNoDeclaration) {
    EXPECT_EQ(Written(XMLFormatStyle::Indented, [](auto& writer) { writer.BeginElement("a"); }), "\n<a></a>");
    auto declare = [](XMLWriter& writer) { writer.BeginDocument(EncodingDeclaration::WithoutEncoding); };
    EXPECT_EQ(Written(XMLFormatStyle::Indented, declare), "<?xml version=\"1.0\"?>");
}

TEST(XMLWriter, EscapesTheQuoteInAttributesOnly) {
    auto write = [](XMLWriter& writer) {
        writer.BeginElement("a").AddAttribute("k", "\"<&>'\r\n\xC3\xA9").WriteString("<\"&\"'>\r\n\xC3\xA9");
    };
    EXPECT_EQ(Written(XMLFormatStyle::Compact, write),
              "<a k=\"&quot;&lt;&amp;&gt;'\r\n\xC3\xA9\">&lt;\"&amp;\"'&gt;\r\n\xC3\xA9</a>");
    auto escaping = [&](XMLWriter& writer) { writer.SetEscapeLineBreaks(true), write(writer); };
    EXPECT_EQ(Written(XMLFormatStyle::Compact, escaping),
              "<a k=\"&quot;&lt;&amp;&gt;'&#xd;&#xa;\xC3\xA9\">&lt;\"&amp;\"'&gt;&#xd;&#xa;\xC3\xA9</a>");
}

}  // namespace
