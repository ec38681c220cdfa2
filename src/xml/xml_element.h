#pragma once

#include <vector>

#include "foundation/base/debuggable_exception.h"
#include "foundation/base/null_or.h"
#include "foundation/text/shared_ustring.h"
#include "xml/sax_parser.h"

class NoSuchChildElement : public DebuggableException {};
class NoSuchAttribute : public DebuggableException {};

// An element of a document: its name, its attributes, its text and its child elements, all by value.
//
// The text is all character data directly inside the element in one piece, whitespace between the children included;
// where in it a child stood is not kept. It is UTF-8 by agreement, unchecked.
//
// A tree may be as deep as memory allows: copying and destroying one takes a loop, not recursion. Moving is cheap and
// keeps the descendants where they are. Names are compared byte for byte. Not locked.
class XMLElement {
  public:
    XMLElement(UStringRef<UTF8> name, XMLAttributes const& attributes) : name_(name), attributes_(attributes) {}
    XMLElement(ResourceTransfer<SharedUString<UTF8>> name, ResourceTransfer<XMLAttributes> attributes)
        : name_(std::move(name)), attributes_(std::move(attributes)) {}
    // Copies the whole tree below the other.
    XMLElement(XMLElement const& other);
    XMLElement(XMLElement&&) noexcept = default;
    XMLElement& operator=(XMLElement other) noexcept;
    ~XMLElement() { DropChildren(); }

    // The references that these give, and the next, are valid until the element changes.
    SharedUString<UTF8> const& Name() const { return name_; }
    XMLAttributes const& Attributes() const { return attributes_; }
    std::vector<XMLElement> const& Children() const { return children_; }
    UStringRef<UTF8> GetValue() const { return UStringRef<UTF8>(value_); }

    // Appends to the text.
    void AppendCharacters(UStringRef<UTF8> text) { value_ += text.AsStringView(); }

    // The first child of that name: null when there is none, or an exception (NoSuchChildElement).
    NullOrConstRef<XMLElement> FindChildElement(UStringRef<UTF8> name) const;
    XMLElement const& GetChildElement(UStringRef<UTF8> name) const;

    bool HasAttribute(UStringRef<UTF8> name) const { return !attributes_.Find(name).IsNull(); }
    // Throws NoSuchAttribute.
    UStringRef<UTF8> GetAttribute(UStringRef<UTF8> name) const;

    // Adds a copy as the last child and returns it. Adding moves the earlier children, not what is below them.
    XMLElement& AddChildElement(XMLElement const& child) { return children_.emplace_back(child); }
    // Adds a child made of these.
    XMLElement& AddChildElement(ResourceTransfer<SharedUString<UTF8>> name,
                                ResourceTransfer<XMLAttributes> attributes) {
        return children_.emplace_back(std::move(name), std::move(attributes));
    }

  private:
    void DropChildren() noexcept;

    SharedUString<UTF8> name_;
    XMLAttributes attributes_;
    Stringy value_;
    std::vector<XMLElement> children_;
};
