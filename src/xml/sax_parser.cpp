#include "xml/sax_parser.h"

#include <algorithm>

namespace {

UStringRef<UTF8> UTF8Of(ConstData bytes) {
    return UStringRef<UTF8>(bytes.AsStringView());
}

}  // namespace

XMLAttributes::XMLAttributes(std::vector<Attribute> attributes) : attributes_(std::move(attributes)) {
    auto precedes = [](auto& left, auto& right) { return left.first < right.first; };
    auto repeats = [](auto& left, auto& right) { return left.first == right.first; };
    if (attributes_.size() < 2) return;
    std::stable_sort(attributes_.begin(), attributes_.end(), precedes);
    attributes_.erase(std::unique(attributes_.begin(), attributes_.end(), repeats), attributes_.end());
}

NullOrConstRef<SharedUString<UTF8>> XMLAttributes::Find(UStringRef<UTF8> name) const {
    auto at = std::ranges::partition_point(attributes_, [&](auto& attribute) { return attribute.first.Ref() < name; });
    if (at == end() || !(at->first == name)) return {};
    return at->second;
}

namespace SimpleXML {

void SAXParser::StartElement(ConstData name, Attributes attributes) {
    std::vector<XMLAttributes::Attribute> taken;
    taken.reserve(attributes.size());
    for (auto pair : attributes) taken.emplace_back(UTF8Of(pair->first), UTF8Of(pair->second));
    target_.StartElement(UTF8Of(name), XMLAttributes(std::move(taken)));
}

}  // namespace SimpleXML
