#include "xml/sax_parser.h"

#include <algorithm>

namespace {

std::size_t SizeOf(std::string_view name, std::string_view value) {
    return 2 * sizeof(std::size_t) + name.size() + value.size();
}

// Returns the end of what it puts.
unsigned char* Put(std::string_view name, std::string_view value, unsigned char* at) {
    std::size_t const sizes[] = {name.size(), value.size()};
    std::memcpy(at, sizes, sizeof(sizes));
    at = std::ranges::copy(name, at + sizeof(sizes)).out;
    return std::ranges::copy(value, at).out;
}

}  // namespace

XMLAttributes::XMLAttributes(ConstArrayOf<XMLAttributePair const*> sorted) {
    std::size_t size = 0;
    for (auto pair : sorted) size += SizeOf(pair->first, pair->second);
    block_.resize(size);
    auto at = block_.data();
    for (XMLAttributePair const* last = nullptr; auto pair : sorted) {
        if (!last || pair->first != last->first) at = Put(pair->first, pair->second, at);
        last = pair;
    }
    block_.resize(static_cast<std::size_t>(at - block_.data()));
}

void XMLAttributes::Add(UStringRef<UTF8> name, UStringRef<UTF8> value) {
    auto at = LowerBound(name);
    if (at != end() && (*at).name == name) return;
    std::vector<unsigned char> added(SizeOf(name.AsStringView(), value.AsStringView()));
    Put(name.AsStringView(), value.AsStringView(), added.data());
    block_.insert(block_.begin() + (at.at_ - block_.data()), added.begin(), added.end());
}

NullOr<UStringRef<UTF8>> XMLAttributes::Find(UStringRef<UTF8> name) const {
    auto at = LowerBound(name);
    if (at == end() || !((*at).name == name)) return {};
    return (*at).value;
}

XMLAttributes::Iterator XMLAttributes::LowerBound(UStringRef<UTF8> name) const {
    auto at = begin();
    while (at != end() && (*at).name < name) ++at;
    return at;
}

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
