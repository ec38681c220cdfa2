#include "xml/sax_parser.h"

#include <algorithm>

namespace SimpleXML {

void SAXParser::StartElement(ConstData name, Attributes attributes) {
    sorted_.assign(attributes.begin(), attributes.end());
    // Of equal names the earlier stands at the lower address.
    std::ranges::sort(sorted_, [](auto left, auto right) {
        auto order = left->first.compare(right->first);
        return order != 0 ? order < 0 : left < right;
    });
    target_.StartElement({name.begin(), name.end()}, XMLAttributes(sorted_));
}

}  // namespace SimpleXML
