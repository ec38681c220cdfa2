#include "xml/sax_parser.h"

#include <algorithm>

namespace SimpleXML {

void SAXParser::StartElement(ConstData name, Attributes attributes) {
    XMLAttributes map;
    sorted_.assign(attributes.begin(), attributes.end());
    // The earlier pair stands at the lower address.
    std::ranges::sort(sorted_, [](auto left, auto right) {
        auto order = left->first.compare(right->first);
        return order != 0 ? order < 0 : left < right;
    });
    map.Reserve(sorted_.size());
    for (auto pair : sorted_)
        map.Add(SharedUString<UTF8>(UStringRef<UTF8>(pair->first)),
                SharedUString<UTF8>(UStringRef<UTF8>(pair->second)));
    target_.StartElement({name.begin(), name.end()}, std::move(map));
}

}  // namespace SimpleXML
