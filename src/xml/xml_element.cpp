#include "xml/xml_element.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "xml/xml_writer.h"

namespace {

void WriteBeginning(XMLWriter& writer, XMLElement const& element) {
    writer.BeginElement(element.Name());
    for (auto& [name, value] : element.Attributes()) writer.AddAttribute(name, value);
    writer.WriteString(element.GetValue());
}

}  // namespace

// Otherwise a growing list of children would copy whole trees.
static_assert(std::is_nothrow_move_constructible_v<XMLElement>);

XMLElement::XMLElement(XMLElement const& other) : XMLElement(other.name_, other.attributes_) {
    value_ = other.value_;
    std::vector<std::pair<XMLElement const*, XMLElement*>> open{{&other, this}};
    while (!open.empty()) {
        auto [from, to] = open.back();
        open.pop_back();
        to->children_.reserve(from->children_.size());
        for (auto& child : from->children_) {
            auto& copy = to->children_.emplace_back(child.name_, child.attributes_);
            copy.value_ = child.value_;
            if (!child.children_.empty()) open.emplace_back(&child, &copy);
        }
    }
}

XMLElement& XMLElement::operator=(XMLElement other) noexcept {
    name_.swap(other.name_);
    std::swap(attributes_, other.attributes_);
    value_.swap(other.value_);
    children_.swap(other.children_);
    return *this;
}

NullOrConstRef<XMLElement> XMLElement::FindChildElement(UStringRef<UTF8> name) const {
    auto at = std::ranges::find_if(children_, [&](auto& child) { return child.name_ == name; });
    if (at == children_.end()) return {};
    return *at;
}

XMLElement const& XMLElement::GetChildElement(UStringRef<UTF8> name) const {
    auto child = FindChildElement(name);
    if (!child) throw NoSuchChildElement();
    return *child;
}

UStringRef<UTF8> XMLElement::GetAttribute(UStringRef<UTF8> name) const {
    auto value = attributes_.Find(name);
    if (!value) throw NoSuchAttribute();
    return *value;
}

// Takes the tree apart from its last child on, in linear time and without a stack or memory of its own: the children
// of a child that goes take the place of its siblings, which hang below the first leaf meanwhile. The way down to a
// first leaf leads along first children only, and never twice over the same. From the last on, because the heap takes
// back in one piece what it gets back in the opposite order.
void XMLElement::DropChildren() noexcept {
    while (!children_.empty()) {
        auto orphans = std::move(children_.back().children_);
        children_.pop_back();
        if (orphans.empty()) continue;
        if (!children_.empty()) {
            auto leaf = &orphans.front();
            while (!leaf->children_.empty()) leaf = &leaf->children_.front();
            leaf->children_ = std::move(children_);
        }
        children_ = std::move(orphans);
    }
}

XMLWriter& XMLWriter::WriteXMLElement(XMLElement const& element) {
    // The open elements, each with the number of its children already begun.
    std::vector<std::pair<XMLElement const*, std::size_t>> open{{&element, 0}};
    WriteBeginning(*this, element);
    while (!open.empty()) {
        auto& [parent, begun] = open.back();
        if (begun == parent->Children().size()) {
            EndElement();
            open.pop_back();
        } else {
            auto& child = parent->Children()[begun++];
            WriteBeginning(*this, child);
            open.emplace_back(&child, 0);
        }
    }
    return *this;
}
