#pragma once

#include <chrono>
#include <map>
#include <string>
#include <string_view>

#include "tools/scenario_line.h"

namespace tools {

// The element of that name; `content` stands as it is, see Escape.
std::string Element(std::string_view name, std::string_view content);

// Text as the content of an element.
std::string Escape(std::string_view text);

// The document that carries these elements to the program.
std::string Document(std::string_view elements);

// As messages carry instants: Sat, 21 Nov 2026 02:16:00 +0000.
std::string TimeText(std::chrono::system_clock::time_point time);

// The element that carries one support file.
std::string SupportFile(std::string_view name, std::string_view bytes);

// The element that a line with one of these verbs stands for; nothing for any other verb. A time is a span from now
// (+2h), or else stands as it is. A flag is a bare word, or its key with yes or no.
//
//     request id= title= description= deadline= preview= confirm= cancellable restart shutdown force save canned
//     message id= title= text= timeout= completion
//     remove action|offer|message|all ID
//     quiet start= end=          quiet end
//     initialize base= remind= remind-time= snooze locale
std::string MessageFor(ScenarioLine const& line, std::string_view support_files = {});

// What the program answers: the name of the message and its fields.
struct Answer {
    std::string name;
    std::map<std::string, std::string> fields;

    std::string Text() const;
};

// Throws std::runtime_error for what is no document.
Answer ReadAnswer(std::string_view text);

}  // namespace tools
