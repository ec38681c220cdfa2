#include "xml/xml_writer.h"

XMLWriter::XMLWriter(UTextReceiver<UTF8>& receiver, XMLFormatStyle const& style) : receiver_(receiver), style_(style) {}

XMLWriter& XMLWriter::BeginDocument(EncodingDeclaration declaration) {
    receiver_.Start(UTF8());
    Put(declaration == EncodingDeclaration::WithEncoding ? "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                                                         : "<?xml version=\"1.0\"?>");
    return *this;
}

XMLWriter& XMLWriter::BeginElement(UStringRef<UTF8> name) {
    CloseStartTag();
    BreakLine(open_.size());
    Put("<");
    Put(name);
    open_.emplace_back(name);
    state_ = TagState::StartTagOpen;
    return *this;
}

XMLWriter& XMLWriter::AddAttribute(UStringRef<UTF8> name, UStringRef<UTF8> value) {
    Put(" ");
    Put(name);
    Put("=\"");
    PutEscaped(value, true);
    Put("\"");
    return *this;
}

XMLWriter& XMLWriter::WriteString(UStringRef<UTF8> text) {
    BeginWritingTagContent();
    PutEscaped(text, false);
    AfterWritingTagContent();
    return *this;
}

XMLWriter& XMLWriter::WriteCData(UStringRef<UTF8> text) {
    BeginWritingTagContent();
    Put("<![CDATA[");
    Put(text);
    Put("]]>");
    AfterWritingTagContent();
    return *this;
}

XMLWriter& XMLWriter::EndElement() {
    CloseStartTag();
    if (state_ == TagState::EndTag) BreakLine(open_.size() - 1);
    Put("</");
    Put(open_.back());
    Put(">");
    state_ = TagState::EndTag;
    open_.pop_back();
    return *this;
}

XMLWriter& XMLWriter::EndDocument() {
    while (!open_.empty()) EndElement();
    receiver_.ReceiveEnd();
    return *this;
}

XMLWriter& XMLWriter::BeginWritingTagContent() {
    CloseStartTag();
    // No tabs here, also when indenting: they would become part of the text.
    if (BreaksLines() && state_ == TagState::EndTag) Put("\n");
    return *this;
}

void XMLWriter::CloseStartTag() {
    if (state_ != TagState::StartTagOpen) return;
    Put(">");
    state_ = TagState::StartTagClosed;
}

void XMLWriter::BreakLine(std::size_t depth) {
    if (!BreaksLines()) return;
    Put("\n");
    if (style_ == XMLFormatStyle::Indented)
        for (; depth != 0; --depth) Put("\t");
}

void XMLWriter::PutEscaped(UStringRef<UTF8> text, bool attribute) {
    auto run = text.begin();
    for (auto at = run; at != text.end(); ++at) {
        auto reference = ReferenceFor(*at, attribute);
        if (!reference) continue;
        if (run != at) Put({run, at});
        Put(reference);
        run = at + 1;
    }
    if (run != text.end()) Put({run, text.end()});
}

// Null for a byte that is written as it is. The apostrophe is one: values stand between double quotes.
char const* XMLWriter::ReferenceFor(unsigned char byte, bool attribute) const {
    switch (byte) {
        case '<':
            return "&lt;";
        case '&':
            return "&amp;";
        case '>':
            return "&gt;";
        case '"':
            return attribute ? "&quot;" : nullptr;
        case '\r':
            return escape_line_breaks ? "&#xd;" : nullptr;
        case '\n':
            return escape_line_breaks ? "&#xa;" : nullptr;
        default:
            return nullptr;
    }
}
