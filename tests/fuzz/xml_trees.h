#pragma once

#include "tests/fuzz/fuzz.h"
#include "xml/xml_element.h"

// Takes a byte off the front of the input, and makes a well-formed name of it.
inline std::string TakeName(std::string_view& input) {
    return {'n', "abcdefgh"[TakeInteger<unsigned char>(input) & 7]};
}

// Takes a tree: a name, how many attributes, their names and values; then "<" and a child, or "=" and text, till anything
// else. Values and texts end in "|".
inline XMLElement TakeTree(std::string_view& input) {
    auto const name = TakeName(input);
    XMLAttributes attributes;
    for (int left = TakeInteger<unsigned char>(input) & 3; left > 0; --left) {
        auto const attribute = TakeName(input);
        attributes.Add(Text(attribute), Text(TakeUntil(input, '|')));
    }
    XMLElement tree(Text(name), attributes);
    for (char step; (step = TakeInteger<char>(input)) == '<' || step == '=';) {
        if (step == '<') tree.AddChildElement(TakeTree(input));
        if (step == '=') tree.AppendCharacters(Text(TakeUntil(input, '|')));
    }
    return tree;
}

// The name and the attributes, told apart by their lengths.
inline std::string Start(XMLElement const& element) {
    std::string start(element.Name().Ref().AsStringView());
    for (auto [name, value] : element.Attributes())
        start.append(name.AsStringView()).append(std::to_string(value.size())).append(value.AsStringView());
    return start;
}

// Whether two trees are the same. In the second, a text may end in characters of `layout`.
inline bool Equal(XMLElement const& tree, XMLElement const& read, char const* layout) {
    auto const text = tree.GetValue().AsStringView(), found = read.GetValue().AsStringView();
    return Start(tree) == Start(read) && found.starts_with(text) &&
           found.find_first_not_of(layout, text.size()) == found.npos &&
           std::ranges::equal(tree.Children(), read.Children(),
                              [&](auto& one, auto& other) { return Equal(one, other, layout); });
}
