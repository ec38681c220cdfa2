#include "xml/xml_element.h"

#include <gtest/gtest.h>

namespace {

XMLElement Element(char const* name) {
    return XMLElement(name, XMLAttributes());
}

TEST(XMLElement, FindsTheFirstChildOfAName) {
    auto parent = Element("p");
    for (auto text : {"one", "two"}) parent.AddChildElement(Element("c")).AppendCharacters(text);
    EXPECT_EQ(parent.GetChildElement("c").GetValue(), UStringRef<UTF8>("one"));
    EXPECT_THROW(parent.GetChildElement("C"), NoSuchChildElement);
    EXPECT_FALSE(parent.FindChildElement("d"));
}

TEST(XMLElement, LooksAttributesUpByTheirBytes) {
    XMLAttributes attributes;
    for (auto name : {"b", "a", "c", "a"})
        attributes.Add(SharedUString<UTF8>(UStringRef<UTF8>(name)), SharedUString<UTF8>(UStringRef<UTF8>(name)));
    XMLElement element("e", attributes);
    EXPECT_TRUE(element.HasAttribute("a"));
    EXPECT_EQ(element.GetAttribute("a"), UStringRef<UTF8>("a"));
    EXPECT_EQ(element.Attributes().size(), 3u);
    EXPECT_FALSE(element.HasAttribute("A"));
    EXPECT_THROW(element.GetAttribute("A"), NoSuchAttribute);
}

TEST(XMLElement, CopiesTheWholeTreeEvenIntoItself) {
    auto parent = Element("p");
    parent.AddChildElement(Element("c")).AddChildElement(Element("d"));
    parent.AddChildElement(parent).AppendCharacters("copy");
    parent.AddChildElement(parent.Children()[1]);
    EXPECT_EQ(parent.GetChildElement("p").GetChildElement("c").GetChildElement("d").Children().size(), 0u);
    EXPECT_EQ(parent.Children()[2].GetValue(), UStringRef<UTF8>("copy"));
    EXPECT_TRUE(parent.GetValue().empty());
    parent = parent.Children()[1];
    EXPECT_EQ(parent.Children().size(), 1u);
}

}  // namespace
