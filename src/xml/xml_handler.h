#pragma once

#include <utility>

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
