#pragma once

#include "foundation/base/null_or.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"

class XMLElement;

// A deadline that is closer than this, or past, is near: a forced action counts down and is not shown closer, the user is
// told to take the others now, and nothing can be put off any more.
inline constexpr TimeInterval kNearDeadline = TimeInterval::Minutes(5);

// One pending action that the client offers to the user: a value, cheap to copy since its texts are shared.
struct ActionRequest {
    using Text = SharedUString<UTF8>;

    // Empty: no texts, no deadline, ID 0, every flag false.
    ActionRequest() = default;
    ActionRequest(unsigned long long id, NullOr<TimeObject> deadline, UStringRef<UTF8> title,
                  UStringRef<UTF8> description, bool cancellable, bool restart, bool shutdown, bool force_run,
                  bool request_save, bool use_canned_strings, NullOr<Text> preview, NullOr<Text> pre_action_message);

    // The deadline as the client sent it, on the time line; null when there is none.
    NullOr<Instant> Deadline() const;
    void SetTitle(UStringRef<UTF8> title);
    void SetDescription(UStringRef<UTF8> description);

    NullOr<Text> pre_action_message;  // What the user must acknowledge before the action is taken.
    NullOr<TimeObject> deadline;
    Text short_description;
    NullOr<Text> preview;  // The action's script.
    unsigned long long id = 0;
    Text title;
    bool cancellable = false;
    bool restart = false;
    bool shutdown = false;
    bool force_run = false;  // Taken by itself once the deadline has passed.
    bool request_save = false;
    bool use_canned_strings = false;
};

// Reads the fields that the element has; the others keep what they hold. A malformed number or time throws what its
// reader throws (numerals.h, text_to_time.h), and the fields before it stay read.
void XMLSerialize(XMLElement const& element, ActionRequest& request);

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

class XMLElement;

// The period in which the user interface is not to be used. A time that the message lacks is the beginning of 1970.
struct QuietModeStart {
    TimeObject start_time;
    TimeObject end_time;
};

void XMLSerialize(XMLElement const& element, QuietModeStart& period);

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
