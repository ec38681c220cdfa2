#include "messages/message_request.h"

#include "xml/serialize.h"

void XMLSerialize(XMLElement const& element, MessageRequest& request) {
    XMLSerialize(element, "IsCompletionMessage", request.is_completion_message);
    XMLSerialize(element, "Timeout", request.timeout);
    XMLSerialize(element, "Title", request.title);
    XMLSerialize(element, "Message", request.message);
    XMLSerialize(element, "ID", request.id);
}
