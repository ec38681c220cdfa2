#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "foundation/base/const_data.h"

// An attribute as it was read: its name and its value.
using XMLAttributePair = std::pair<Stringy, Stringy>;

// What a parser reports, in document order. All bytes and pairs are borrowed for the call only; nothing has been
// checked to be valid UTF-8. What a handler throws leaves the parser through Parse.
class XMLHandler {
  public:
    using Attributes = ConstArrayOf<XMLAttributePair const*>;

    virtual ~XMLHandler() = default;
    // A start tag; the attributes in document order, repeated names included.
    virtual void StartElement(ConstData name, Attributes attributes) = 0;
    // An end tag. It need not match any start tag.
    virtual void EndElement(ConstData name) = 0;
    // Character data, never empty: a run of plain text, one decoded entity, or a CDATA section.
    virtual void Characters(ConstData text) = 0;
    // A tag whose name begins with "?", that mark included, such as the XML declaration.
    virtual void DoProcessingInstructionElement(ConstData /*name*/, Attributes /*attributes*/) {}
};

// A small, forgiving XML parser: a state machine over bytes that reports to a handler and rejects nothing.
//
// What the two ends of the conversation write is read in full. Everything else has one fixed outcome, which is meant:
// - only the space separates; a tab or a line feed inside a tag is part of a name;
// - "<a/>" is an end tag, and "/" after an attribute begins another attribute's name;
// - the first hyphen of a tag name is dropped, the second begins a comment, which ends at the first ">" after two or
//   more hyphens;
// - an attribute name runs to the next "=", wherever that is, and what follows up to the next quote is skipped;
// - four entities and hexadecimal references up to FF are decoded, the latter to one raw byte; anything else between
//   "&" and ";" stays as it is written;
// - a CDATA section loses its zero bytes;
// - text that no "<" or "&" follows is never reported.
// Documents are UTF-8 by agreement; the parser looks at bytes and checks no encoding.
//
// A document may be fed in pieces: the events do not depend on where it is cut. The time taken is linear in the input,
// whatever it holds. One thread at a time; not to be fed from inside its handler.
class SimpleXMLParserPL : public XMLHandler {
  public:
    enum class State {
        Characters = 0,
        CharactersEntity = 1,
        TagName = 2,
        EndTagName = 3,
        BetweenAttributes = 4,
        AttributeName = 5,
        BeforeAttributeValue = 6,
        AttributeValue = 7,
        AttributeEntity = 8,
        Comment = 9,
        CData = 10
    };

    // A parser that is its own handler, for classes that derive from it.
    SimpleXMLParserPL() : handler_(*this) {}
    // The handler must outlive the parser.
    explicit SimpleXMLParserPL(XMLHandler& handler) : handler_(handler) {}
    SimpleXMLParserPL(SimpleXMLParserPL const&) = delete;
    SimpleXMLParserPL& operator=(SimpleXMLParserPL const&) = delete;

    // Feeds the next bytes of the document.
    void Parse(char const* data, unsigned int length) { Feed(data, data + length); }
    void Parse(Stringy const& bytes) { Feed(bytes.data(), bytes.data() + bytes.size()); }

    // Leaves the present state and enters the next, with what both entail; the state changes in no other way.
    void TransitionState(State next);
    // The text that the entity read last stands for.
    Stringy DecodeEscapeString() const;

    // As a handler, the parser does nothing.
    void StartElement(ConstData, Attributes) override {}
    void EndElement(ConstData) override {}
    void Characters(ConstData) override {}

  protected:
    void Feed(char const* at, char const* end);

  private:
    // What each state makes of the bytes in [at, end), at least one: they take one byte or a whole run, and return the
    // first byte that they leave.
    char const* InCharacters(char const* at, char const* end);
    char const* InEntity(char const* at, char const* end, State after);
    char const* InTagName(char const* at, char const* end);
    char const* InEndTagName(char const* at, char const* end);
    char const* BetweenAttributes(char const* at);
    char const* InAttributeName(char const* at, char const* end);
    char const* BeforeAttributeValue(char const* at, char const* end);
    char const* InAttributeValue(char const* at, char const* end);
    char const* InComment(char const* at, char const* end);
    char const* InCData(char const* at, char const* end);

    char const* AppendToTagName(char const* at, char const* end);
    void EndTagNameRun(char byte);
    void AppendToCData(char const* at, char const* end);
    void AppendWithoutZeros(char const* at, char const* end);
    void Go(State from, State next);
    void LeaveState(State from, State next);
    void EnterState(State next);
    void FlushText();
    void ReportTag();
    void BeginAttribute();

    State state_ = State::Characters;
    char current_ = 0;
    char previous_ = 0;         // inside CDATA: the byte before the current one,
    char before_previous_ = 0;  // and the one before that
    char quote_ = 0;
    Stringy text_;
    Stringy escape_;  // from "&" to ";"
    Stringy tag_name_;
    std::vector<XMLAttributePair const*> attributes_;
    std::vector<XMLAttributePair>
        pairs_;  // kept from tag to tag, never shrunk; the first attribute_count_ are complete
    XMLAttributePair* attribute_ = nullptr;  // the one being read
    std::uint32_t attribute_count_ = 0;
    std::int32_t dashes_ = 0;
    XMLHandler& handler_;
};
