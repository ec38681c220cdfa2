#pragma once

#include <cstdint>
#include <vector>

#include "foundation/text/shared_ustring.h"
#include "foundation/text/ustring_builder.h"

class XMLElement;

// How a document is broken into lines. Every value from Compact up means no line breaks at all.
enum class XMLFormatStyle : std::uint32_t { Indented = 0, LineBreaks = 1, Compact = 2 };

// Whether the declaration names the encoding. Every value but the first means that it does not.
enum class EncodingDeclaration : std::uint32_t { WithEncoding = 0, WithoutEncoding = 1 };

// Writes one XML document as UTF-8 into a text receiver, in document order:
//
//     XMLWriter writer(builder, XMLFormatStyle::Indented);
//     writer.BeginDocument(EncodingDeclaration::WithEncoding).BeginElement("UIToClient");
//     writer.BeginElement("ID").WriteString("42").EndElement();
//     writer.EndDocument();
//
// Styles Indented and LineBreaks put a line feed before every element, the root included, and before every end tag that
// follows another one; Indented adds a tab for each level. Text stays on the line of its start tag, and of its end tag if
// no element comes between; after an end tag it begins a line of its own, without tabs. An element without content is
// written as its start tag and its end tag, never in the self-closing form.
//
// Nothing is buffered: runs of text go to the receiver as ranges of the caller's bytes. A writer serves one document.
// It throws nothing of its own, and checks nothing: well-formed names, attributes only directly after BeginElement,
// one EndElement for each element and no "]]>" inside CDATA are the caller's duty. One thread at a time.
class XMLWriter {
  public:
    // Writes nothing yet. The receiver must outlive the writer.
    XMLWriter(UTextReceiver<UTF8>& receiver, XMLFormatStyle const& style);

    // Starts the receiver and writes the XML declaration. A document without a declaration leaves this call out.
    XMLWriter& BeginDocument(EncodingDeclaration declaration);
    XMLWriter& BeginElement(UStringRef<UTF8> name);
    XMLWriter& AddAttribute(UStringRef<UTF8> name, UStringRef<UTF8> value);
    // Writes text with its markup characters escaped. Empty text still ends the start tag.
    XMLWriter& WriteString(UStringRef<UTF8> text);
    // Writes text unescaped, in a CDATA section.
    XMLWriter& WriteCData(UStringRef<UTF8> text);
    // Writes the element with its attributes, its text and then its children. Depth costs memory, not stack. Defined
    // beside XMLElement, in the library of the tree.
    XMLWriter& WriteXMLElement(XMLElement const& element);
    // Ends the innermost open element.
    XMLWriter& EndElement();
    // Ends every element that is still open, and the receiver.
    XMLWriter& EndDocument();

    // What goes before and after any content of an element.
    XMLWriter& BeginWritingTagContent();
    void AfterWritingTagContent() { state_ = TagState::Content; }

    // Whether CR and LF, in text and in attribute values, are written as character references. Free to be set at any time.
    bool escape_line_breaks = false;

  private:
    enum class TagState : std::uint32_t { Nothing, StartTagOpen, StartTagClosed, Content, EndTag };

    void Put(UStringRef<UTF8> piece) { receiver_.Receive({piece.data(), piece.size()}); }
    void PutEscaped(UStringRef<UTF8> text, bool attribute);
    char const* ReferenceFor(unsigned char byte, bool attribute) const;
    void CloseStartTag();
    void BreakLine(std::size_t depth);
    bool BreaksLines() const { return style_ <= XMLFormatStyle::LineBreaks; }

    UTextReceiver<UTF8>& receiver_;
    XMLFormatStyle style_;
    [[maybe_unused]] bool reserved_ = true;  // Part of the writer's form; nothing reads it.
    std::vector<SharedUString<UTF8>> open_;
    TagState state_ = TagState::Nothing;
};
