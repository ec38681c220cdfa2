#include "xml/serialize.h"

#include <gtest/gtest.h>

#include "foundation/text/numerals.h"
#include "foundation/text/ustring_builder.h"
#include "xml/simple_xml.h"

namespace {

XMLElement Parsed(std::string const& document) {
    return *SimpleXML::Parse(UStringRef<UTF8>(document));
}

template <class T>
T Loaded(std::string const& text) {
    T value{};
    XMLSerialize(Parsed("<p><v>" + text + "</v></p>"), "v", value);
    return value;
}

template <class T>
std::string Saved(T const& value) {
    UStringBuilder<UTF8> builder;
    XMLWriter writer(builder, XMLFormatStyle::Compact);
    XMLSerialize(writer, "v", value);
    return std::string(builder.Ref().AsStringView());
}

template <class T>
std::string Resaved(std::string const& text) {
    return Saved(Loaded<T>(text));
}

TEST(XMLSerialize, SpellsEveryTypeAsItReadsIt) {
    EXPECT_EQ(Resaved<SharedUString<UTF8>>(" \xC3\xA9 \n"), "<v> \xC3\xA9 \n</v>");
    EXPECT_EQ(Resaved<Stringy>("&amp;]]>"), "<v>&amp;]]&gt;</v>");
    EXPECT_EQ(Resaved<unsigned long long>("0018446744073709551615"), "<v>18446744073709551615</v>");
    EXPECT_EQ(Resaved<unsigned int>("00"), "<v>0</v>");
    EXPECT_EQ(Resaved<TimeInterval>("PT36H"), "<v>P1DT12H</v>");
    EXPECT_EQ(Resaved<TimeObject>("Sun, 15 Nov 2026 02:16:00 -0330"), "<v>Sun, 15 Nov 2026 02:16:00 -0330</v>");
    EXPECT_EQ(Resaved<FileLocation>("/a/../b&amp;"), "<v><![CDATA[/a/../b&]]></v>");
    EXPECT_EQ(Resaved<FileName>("a/b&gt;"), "<v><![CDATA[a/b>]]></v>");
    EXPECT_EQ(Saved("literal"), "<v>literal</v>");
    for (auto text : {"0", "false"}) EXPECT_EQ(Resaved<bool>(text), "<v>false</v>") << text;
    for (auto text : {"1", "", "False", "00", " 0", "false "}) EXPECT_EQ(Resaved<bool>(text), "<v>true</v>") << text;
    EXPECT_THROW(Loaded<unsigned int>(" 1"), NotANumeral);
    EXPECT_THROW(Loaded<unsigned int>("4294967296"), NumeralTooLarge);
}

TEST(XMLSerialize, KeepsWhatIsThereWhenTheElementIsAbsent) {
    auto parent = Parsed("<p> <v></v><w>1</w><w>2</w><V>3</V> </p>");
    unsigned int number = 7;
    XMLSerialize(parent, "x", number);
    EXPECT_EQ(number, 7u);
    NullOr<Stringy> text("old");
    XMLSerialize(parent, "v", text);
    EXPECT_EQ(text, NullOr<Stringy>(""));
    XMLSerialize(parent, "x", text);
    EXPECT_TRUE(text.IsNull());
    std::vector<unsigned int> numbers{9};
    XMLLoadList(parent, "w", numbers);
    EXPECT_EQ(numbers, (std::vector{1u, 2u}));
}

}  // namespace
