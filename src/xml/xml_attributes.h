#pragma once

#include <algorithm>
#include <vector>

#include "foundation/text/shared_ustring.h"

// The attributes of one element: an ordered map from name to value, ascending by the bytes of the names.
//
// It is one block of memory in the order of the names. Elements have few attributes and documents have many elements,
// so that a node for each attribute would be most of what building and freeing a tree costs. Adding names in ascending
// order takes constant time each, any other addition moves what stands after it.
class XMLAttributes {
  public:
    struct Attribute {
        SharedUString<UTF8> name;
        SharedUString<UTF8> value;

        Attribute(ResourceTransfer<SharedUString<UTF8>> its_name,
                  ResourceTransfer<SharedUString<UTF8>> its_value) noexcept
            : name(std::move(its_name)), value(std::move(its_value)) {}
    };
    using Iterator = std::vector<Attribute>::const_iterator;

    // Makes room for that many.
    void Reserve(std::size_t count) { attributes_.reserve(count); }

    // Adds an attribute, unless there is one of that name.
    void Add(ResourceTransfer<SharedUString<UTF8>> name, ResourceTransfer<SharedUString<UTF8>> value) {
        auto at = LowerBound(name);
        if (at == end())
            attributes_.emplace_back(std::move(name), std::move(value));
        else if (!(at->name == name))
            attributes_.emplace(at, std::move(name), std::move(value));
    }

    // The attribute of that name, or end().
    Iterator Find(UStringRef<UTF8> name) const {
        auto at = LowerBound(name);
        return at != end() && at->name == name ? at : end();
    }

    Iterator begin() const { return attributes_.begin(); }
    Iterator end() const { return attributes_.end(); }
    std::size_t size() const { return attributes_.size(); }

  private:
    // The first place whose name is not below the given one; the end, mostly, while a list is made.
    Iterator LowerBound(UStringRef<UTF8> name) const {
        if (attributes_.empty() || attributes_.back().name.Ref() < name) return end();
        return std::partition_point(begin(), end(), [&](auto& each) { return each.name.Ref() < name; });
    }

    std::vector<Attribute> attributes_;
};
