#pragma once

#include "foundation/text/auto_ustring.h"
#include "xml/xml_attributes.h"

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
