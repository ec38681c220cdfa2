#pragma once

#include "foundation/base/null_or.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/time/instant.h"

class XMLElement;

// The client asks for a message to be shown, or for the one of the same ID to be changed.
struct MessageRequest {
    bool is_completion_message = false;  // The title names an action that has completed.
    NullOr<TimeInterval> timeout;        // Null: until dismissed.
    SharedUString<UTF8> title;
    SharedUString<UTF8> message;
    unsigned long long id = 0;
};

// Reads the fields that the element has, in the order above; the others keep what they hold.
void XMLSerialize(XMLElement const& element, MessageRequest& request);
