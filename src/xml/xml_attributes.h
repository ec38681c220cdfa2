#pragma once

#include <array>
#include <cstring>
#include <vector>

#include "foundation/base/null_or.h"
#include "foundation/text/ustring_ref.h"
#include "xml/xml_handler.h"

// The attributes of one element: an ordered map from name to value, ascending by the bytes of the names.
//
// All of it stands in one block of memory, names and values included. Elements have few attributes and documents many
// elements: a node and two strings for each attribute would be most of what a tree costs to build, keep and free. The
// price is that a name is looked up from the first attribute on. What the map gives out is valid until it changes.
class XMLAttributes {
  public:
    struct Attribute {
        UStringRef<UTF8> name;
        UStringRef<UTF8> value;
    };

    // Walks the attributes in the order of their names.
    class Iterator {
      public:
        Attribute operator*() const { return {{Name(), Value()}, {Value(), Value() + Sizes()[1]}}; }
        Iterator& operator++() {
            at_ = Value() + Sizes()[1];
            return *this;
        }
        bool operator==(Iterator const&) const = default;

      private:
        friend class XMLAttributes;
        explicit Iterator(unsigned char const* at) : at_(at) {}
        unsigned char const* Name() const { return at_ + sizeof(std::array<std::size_t, 2>); }
        unsigned char const* Value() const { return Name() + Sizes()[0]; }
        // Of the name and of the value, both of which follow.
        std::array<std::size_t, 2> Sizes() const {
            std::array<std::size_t, 2> sizes;
            std::memcpy(&sizes, at_, sizeof(sizes));
            return sizes;
        }

        unsigned char const* at_;
    };

    XMLAttributes() = default;
    // Of these, which stand in ascending order of their names. Of equal names the first counts.
    explicit XMLAttributes(ConstArrayOf<XMLAttributePair const*> sorted);

    // Adds an attribute, unless there is one of that name.
    void Add(UStringRef<UTF8> name, UStringRef<UTF8> value);

    // The value of that name.
    NullOr<UStringRef<UTF8>> Find(UStringRef<UTF8> name) const;

    Iterator begin() const { return Iterator(block_.data()); }
    Iterator end() const { return Iterator(block_.data() + block_.size()); }

  private:
    // The first attribute that does not stand before the name.
    Iterator LowerBound(UStringRef<UTF8> name) const;

    std::vector<unsigned char> block_;
};
