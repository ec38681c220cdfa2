#pragma once

#include <array>
#include <cstring>
#include <vector>

#include "foundation/base/null_or.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/ustring_ref.h"
#include "xml/simple_xml_parser_pl.h"

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

// What a SAXParser reports, in document order; the default operations do nothing. The text is borrowed for the call
// and has not been checked to be valid UTF-8.
class XMLReceiver {
  public:
    virtual ~XMLReceiver() = default;
    // The attributes are the receiver's to keep.
    virtual void StartElement(UStringRef<UTF8> /*name*/, ResourceTransfer<XMLAttributes> /*attributes*/) {}
    virtual void EndElement() {}
    virtual void Characters(UStringRef<UTF8> /*text*/) {}
};

namespace SimpleXML {

// The parser with its events in the program's own text: names as UTF-8 strings, attributes as a map. Of attributes
// with the same name the first counts. Processing instructions are not reported.
class SAXParser : public SimpleXMLParserPL {
  public:
    // The target must outlive the parser.
    explicit SAXParser(XMLReceiver& target) : target_(target) {}

    // Feeds the next bytes of the document.
    void Parse(UStringRef<UTF8> text) { SimpleXMLParserPL::Parse(text.AsData()); }

    void StartElement(ConstData name, Attributes attributes) override;
    void EndElement(ConstData) override { target_.EndElement(); }
    void Characters(ConstData text) override { target_.Characters({text.begin(), text.end()}); }

  private:
    XMLReceiver& target_;
    std::vector<XMLAttributePair const*> sorted_;  // by name, and equal names in document order
};

}  // namespace SimpleXML
