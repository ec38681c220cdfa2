#include "xml/xml_element.h"

#include <gtest/gtest.h>

namespace {

XMLElement Element(char const* name) {
    return XMLElement(name, XMLAttributes());
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
