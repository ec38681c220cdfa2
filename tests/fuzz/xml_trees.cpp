#include "tests/fuzz/xml_trees.h"

#include <algorithm>

#include "tests/fuzz/fuzz.h"

// Well-formed, whatever the byte.
static std::string Name(char byte) {
    return {'n', "abcdefgh"[byte & 7]};
}

XMLElement TreeFrom(std::string_view steps) {
    std::vector<XMLElement> open(1, XMLElement("root", XMLAttributes()));
    while (!steps.empty() || open.size() > 1) {
        std::string_view const step = steps.empty() ? ">" : TakeUntil(steps, '|');
        if (step.size() > 2 && step[0] == '<') {
            XMLAttributes attributes;
            for (char name : {step[1], step[2]}) attributes.Add(Text(Name(name)), Text(step.substr(3)));
            open.emplace_back(Text(Name(step[1])), attributes);
        } else if (step == ">" && open.size() > 1) {
            open[open.size() - 2].AddChildElement(std::move(open.back()));
            open.pop_back();
        } else if (!step.empty()) {
            open.back().AppendCharacters(Text(step.substr(1)));
        }
    }
    return open[0];
}

static std::string Flat(XMLAttributes const& attributes) {
    std::string flat;
    for (auto [name, value] : attributes)
        flat.append(name.AsStringView()).append(std::to_string(value.size())).append(value.AsStringView());
    return flat;
}

bool Equal(XMLElement const& tree, XMLElement const& read, char const* layout) {
    auto const text = tree.GetValue().AsStringView(), found = read.GetValue().AsStringView();
    return tree.Name() == read.Name() && Flat(tree.Attributes()) == Flat(read.Attributes()) &&
           found.starts_with(text) && found.find_first_not_of(layout, text.size()) == found.npos &&
           std::ranges::equal(tree.Children(), read.Children(),
                              [&](auto& one, auto& other) { return Equal(one, other, layout); });
}
