#pragma once

#include <cstdint>
#include <string_view>
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
// What an XMLWriter has written is read back, but for hyphens in names and zero bytes in CDATA sections. Whatever else
// comes has one fixed outcome, which is meant:
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
    void Parse(char const* data, unsigned int length) { Parse(std::string_view(data, length)); }
    void Parse(ConstData bytes);

    // Leaves the present state and enters the next, with what either entails; the state changes in no other way. For the
    // parser's own steps: `next` must be a state that the present one leads to.
    void TransitionState(State next);
    // The text that the entity read last stands for.
    Stringy DecodeEscapeString() const;

    // As a handler, the parser does nothing.
    void StartElement(ConstData, Attributes) override {}
    void EndElement(ConstData) override {}
    void Characters(ConstData) override {}

  private:
    template <class... Bytes>
    std::string_view TakeRun(Bytes... stops);
    bool TakeByte();
    template <class... Bytes>
    bool TakeUpTo(Stringy& buffer, Bytes... stops);

    void Step();
    void StepInTagName();
    void StepInComment();
    void StepInCData();
    void LeaveState(State next);
    void EnterState(State next);

    void AddCharacters(std::string_view run);
    void ReportText();
    void BeginAttribute();
    void ReportTag();
    XMLAttributePair& Attribute() { return pairs_[attribute_count_]; }

    State state_ = State::Characters;
    std::string_view rest_;  // what is left of the piece being fed
    char current_ = 0;       // the byte taken last
    char quote_ = 0;         // what began the attribute value
    Stringy text_;           // of character data that was cut, or of a CDATA section as it stands
    Stringy escape_;         // from "&" on, to ";" once it is complete
    Stringy tag_name_;
    std::vector<XMLAttributePair const*> attributes_;
    // Kept from tag to tag, never shrunk. The first attribute_count_ are complete, the next is being read.
    std::vector<XMLAttributePair> pairs_;
    std::uint32_t attribute_count_ = 0;
    std::int32_t dashes_ = 0;
    XMLHandler& handler_;
};
