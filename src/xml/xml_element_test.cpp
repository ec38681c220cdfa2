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

TEST(XMLElement, KeepsAttributesInTheOrderOfTheirBytes) {
    XMLAttributes attributes;
    for (auto name : {"b", "", "\xC3", "aa", "a", "b"}) attributes.Add(name, attributes.Find(name) ? "again" : name);
    XMLElement element("e", attributes);
    std::string names;
    for (auto [name, value] : element.Attributes()) {
        names += std::string(name.AsStringView()) + ",";
        EXPECT_EQ(value, name);
        EXPECT_EQ(element.GetAttribute(name), value);
    }
    EXPECT_EQ(names, ",a,aa,b,\xC3,");
    for (auto absent : {"A", "ab", "c", "\xC4"}) EXPECT_THROW(element.GetAttribute(absent), NoSuchAttribute) << absent;
}

TEST(XMLElement, CopiesTheWholeTreeEvenIntoItself) {
    auto parent = Element("p");
    parent.AddChildElement(Element("c")).AddChildElement(Element("d"));
    parent.AddChildElement(parent).AppendCharacters("copy");
    parent.AddChildElement(parent.Children()[1]);
    EXPECT_EQ(XMLElement(parent).GetChildElement("p").GetChildElement("c").GetChildElement("d").Children().size(), 0u);
    parent = parent.Children()[2];
    EXPECT_EQ(parent.Children().size(), 1u);
    EXPECT_EQ(parent.GetValue(), UStringRef<UTF8>("copy"));
    auto list = Element("l");
    list.AddChildElement(std::move(list.AddChildElement(Element("c"))));
    EXPECT_EQ(list.Children()[1].Name(), UStringRef<UTF8>("c"));
}

}  // namespace
