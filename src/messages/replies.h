#pragma once

#include <utility>

#include "foundation/base/const_data.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"

// The documents that the process sends to its client: one record each, and the whole text of its document (XML 1.0,
// UTF-8, indented by tabs, no line feed at the end).

// The process has started and waits for the client's first message.
struct ReadyForData {};

// The user has decided on one action, or its deadline has.
struct ActionTaken {
    bool is_cancel = false;  // Cancelled rather than taken.
    bool is_offer = false;
    unsigned long long id = 0;
};

// Until when the user snoozes.
struct RemindTime {
    TimeObject time;
};

// For how long the user snoozes; zero or negative: counted from the earliest deadline.
struct RemindInterval {
    TimeInterval interval{0};
};

// The user interface cannot go on.
struct ClientUIErrorMessage {
    enum class ErrorCode : unsigned {
        Unset = 0,
        ToolkitWarning = 1,  // The debug string is the warning's name and, in parentheses, its class.
        DialogNotShown = 2,  // The debug string is the dialog's name.
    };
    ClientUIErrorMessage() = default;
    ClientUIErrorMessage(ErrorCode code, Stringy text) : error_code(code), debug_string(std::move(text)) {}

    ErrorCode error_code = ErrorCode::Unset;
    Stringy debug_string;
};

// The document of a record. The root is "UIToClient", but for these two: ReadyForData and ClientUIErrorMessage go out
// under the client's own root "ClientToUI". That is meant, clients look for them there.
template <class Record>
AutoUString<UTF8> ConvertToXML(Record const& record);
template <>
AutoUString<UTF8> ConvertToXML(ReadyForData const&);
template <>
AutoUString<UTF8> ConvertToXML(ClientUIErrorMessage const& error);
template <>
AutoUString<UTF8> ConvertToXML(ActionTaken const& taken);
template <>
AutoUString<UTF8> ConvertToXML(RemindTime const& remind);
template <>
AutoUString<UTF8> ConvertToXML(RemindInterval const& remind);
