#pragma once

#include <string_view>

#include "xml/xml_element.h"

// Any tree of which every name is well-formed. The steps end in "|": "<abtext" opens an element with two attributes, ">"
// ends it, "=text" adds text.
XMLElement TreeFrom(std::string_view steps);

// Whether two trees are the same. In the second, a text may end in characters of `layout`.
bool Equal(XMLElement const& tree, XMLElement const& read, char const* layout);
