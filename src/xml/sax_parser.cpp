#include "xml/sax_parser.h"

namespace SimpleXML {

void SAXParser::StartElement(ConstData name, Attributes attributes) {
    XMLAttributes map;
    for (auto attribute : attributes) {
        UStringRef<UTF8> key(attribute->first);
        auto at = map.lower_bound(key);
        if (at != map.end() && at->first == key) continue;
        map.emplace_hint(at, names_.Get(key), SharedUString<UTF8>(UStringRef<UTF8>(attribute->second)));
    }
    target_.StartElement({name.begin(), name.end()}, std::move(map));
}

}  // namespace SimpleXML
