#pragma once

class XMLElement;
class XMLWriter;

enum class RemoveType { Action = 0, Offer = 1, Message = 2, All = 3 };

// The client withdraws an action, a message, or both.
struct RemoveRequest {
    unsigned long long id = 0;
    RemoveType remove_type = RemoveType::All;
};

// Reads "RemoveType" and "ID". A type that is none of "Action", "Offer", "Message" and "All" to the letter leaves the
// type as it is.
void XMLLoad(XMLElement const& element, RemoveRequest& request);

// Writes the two fields into the element that is open: the client's side of the same form.
void XMLSave(XMLWriter& writer, RemoveRequest const& request);
