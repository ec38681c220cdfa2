#pragma once

#include <algorithm>
#include <vector>

#include "foundation/base/null_or.h"
#include "foundation/files/file_location.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"
#include "xml/xml_element.h"
#include "xml/xml_writer.h"

// Values in XML: how each type is spelled, and how the fields of a record are read from and written to an element.
//
//     XMLSerialize(element, "Title", record.title);   // Keeps what it is when the element has no "Title".
//     XMLSave(writer, "ID", record.id);
//
// A field is the first child element of its name. Its text is taken as it stands, nothing is trimmed. What a value's
// reader throws passes through, and the fields read before stay read.

// The value of a text.
//
// Strings and paths: the text itself. Of bool, exactly "0" and "false" are false and everything else is true, the empty
// text included: meant, clients write other words for true. Numbers: decimal digits (NotANumeral, NumeralTooLarge).
// TimeInterval: an XML Schema duration (xml_duration.h). TimeObject: the text form of times (text_to_time.h), not the one
// of XML Schema. A FileName is stored unchecked: it is its user who must look at it.
void XMLFromText(UStringRef<UTF8> text, SharedUString<UTF8>& out);
void XMLFromText(UStringRef<UTF8> text, AutoUString<UTF8>& out);
void XMLFromText(UStringRef<UTF8> text, CopiedUString<UTF8>& out);
void XMLFromText(UStringRef<UTF8> text, Stringy& out);
void XMLFromText(UStringRef<UTF8> text, bool& out);
void XMLFromText(UStringRef<UTF8> text, unsigned long long& out);
void XMLFromText(UStringRef<UTF8> text, unsigned int& out);
void XMLFromText(UStringRef<UTF8> text, TimeInterval& out);
void XMLFromText(UStringRef<UTF8> text, TimeObject& out);
void XMLFromText(UStringRef<UTF8> text, FileLocation& out);
void XMLFromText(UStringRef<UTF8> text, FileName& out);

template <class T>
concept XMLValue = requires(UStringRef<UTF8> text, T& out) {
    XMLFromText(text, out);
};

// The element's own text.
template <XMLValue T>
void XMLLoad(XMLElement const& element, T& out) {
    XMLFromText(element.GetValue(), out);
}
// The child's text; without the child, `out` stays as it is.
template <XMLValue T>
void XMLLoad(XMLElement const& parent, UStringRef<UTF8> name, T& out) {
    if (auto child = parent.FindChildElement(name)) XMLLoad(*child, out);
}
template <XMLValue T>
void XMLSerialize(XMLElement const& parent, UStringRef<UTF8> name, T& out) {
    XMLLoad(parent, name, out);
}
// Null without the child; an empty child counts as present.
template <XMLValue T>
void XMLSerialize(XMLElement const& parent, UStringRef<UTF8> name, NullOr<T>& out) {
    auto child = parent.FindChildElement(name);
    if (!child) {
        out = {};
        return;
    }
    T value{};
    XMLLoad(*child, value);
    out = std::move(value);
}
// Every child of the name, in document order, each read into a new T by XMLLoad.
template <class T>
void XMLLoadList(XMLElement const& parent, UStringRef<UTF8> name, std::vector<T>& out) {
    auto const matches = [&](XMLElement const& child) { return child.Name().Ref() == name; };
    out.clear();
    out.reserve(static_cast<std::size_t>(std::ranges::count_if(parent.Children(), matches)));
    for (auto const& child : parent.Children())
        if (matches(child)) XMLLoad(child, out.emplace_back());
}
// Throws NoSuchAttribute when the element lacks the attribute.
template <XMLValue T>
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, T& out) {
    XMLFromText(element.GetAttribute(name), out);
}
// Without the attribute, `out` stays as it is.
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, bool& out);

// The text of a value, as it is read back. Numbers carry no leading zeros, bool is "true" or "false".
AutoUString<UTF8> XMLToText(bool value);
AutoUString<UTF8> XMLToText(unsigned long long value);
AutoUString<UTF8> XMLToText(unsigned int value);
AutoUString<UTF8> XMLToText(TimeInterval const& value);
AutoUString<UTF8> XMLToText(TimeObject const& value);
UStringRef<UTF8> XMLToText(UStringRef<UTF8> value);
UStringRef<UTF8> XMLToText(char const* value);  // or a literal would be taken for a bool
UStringRef<UTF8> XMLToText(Stringy const& value);
UStringRef<UTF8> XMLToText(FileLocation const& value);
UStringRef<UTF8> XMLToText(FileName const& value);

// Writes text into the open element: in a CDATA section where it holds markup characters and can be, otherwise escaped.
void XMLSave(XMLWriter& writer, UStringRef<UTF8> text);

template <class T>
requires requires(T const& value) {
    XMLToText(value);
}
void XMLSave(XMLWriter& writer, T const& value) {
    XMLSave(writer, UStringRef<UTF8>(XMLToText(value)));
}
// An element of the name that holds the value.
template <class T>
void XMLSave(XMLWriter& writer, UStringRef<UTF8> name, T const& value) {
    writer.BeginElement(name);
    XMLSave(writer, value);
    writer.EndElement();
}
template <class T>
void XMLSerialize(XMLWriter& writer, UStringRef<UTF8> name, T const& value) {
    XMLSave(writer, name, value);
}
template <class T>
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, T const& value) {
    writer.AddAttribute(name, UStringRef<UTF8>(XMLToText(value)));
}
