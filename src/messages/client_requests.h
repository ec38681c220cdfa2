#pragma once

#include "foundation/base/null_or.h"
#include "foundation/text/shared_ustring.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"

// What the client asks of the user interface. Each is read from its element: fields that the element lacks keep what they
// hold, of several with one name the first counts. A malformed number, duration or time throws what its reader throws
// (numerals.h, xml_duration.h, text_to_time.h), and the fields before it stay read.

class XMLElement;
class XMLWriter;

// A deadline that is closer than this, or past, is near: the user is told to act now, and nothing can be put off any more.
inline constexpr TimeInterval kNearDeadline = TimeInterval::Minutes(5);

// One pending action that the client offers to the user: a value, cheap to copy since its texts are shared.
struct ActionRequest {
    using Text = SharedUString<UTF8>;

    // Empty: no texts, no deadline, ID 0, every flag false.
    ActionRequest() = default;
    ActionRequest(unsigned long long action_id, NullOr<TimeObject> due, UStringRef<UTF8> title_text,
                  UStringRef<UTF8> description, bool can_cancel, bool restarts, bool shuts_down, bool is_forced,
                  bool asks_to_save, bool uses_canned_strings, NullOr<Text> script, NullOr<Text> question);

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

void XMLSerialize(XMLElement const& element, ActionRequest& request);

// The client asks for a message to be shown, or for the one of the same ID to be changed.
struct MessageRequest {
    bool is_completion_message = false;  // The title names an action that has completed.
    NullOr<TimeInterval> timeout;        // Null: until dismissed.
    SharedUString<UTF8> title;
    SharedUString<UTF8> message;
    unsigned long long id = 0;
};

void XMLSerialize(XMLElement const& element, MessageRequest& request);

// The period in which the user interface is not to be used. A time that the message lacks is the beginning of 1970.
struct QuietModeStart {
    TimeObject start_time;
    TimeObject end_time;
};

void XMLSerialize(XMLElement const& element, QuietModeStart& period);

enum class RemoveType { Action = 0, Offer = 1, Message = 2, All = 3 };

// The client withdraws an action, a message, or both.
struct RemoveRequest {
    unsigned long long id = 0;
    RemoveType remove_type = RemoveType::All;
};

// A type that is none of "Action", "Offer", "Message" and "All" to the letter leaves the type as it is.
void XMLLoad(XMLElement const& element, RemoveRequest& request);

// Writes the two fields into the element that is open: the client's side of the same form.
void XMLSave(XMLWriter& writer, RemoveRequest const& request);
