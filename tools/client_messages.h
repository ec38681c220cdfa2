#pragma once

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tools {

// One line of a scenario: words, and values with a key, separated by blanks. Text in double quotes may hold blanks; in it
// \" \\ \n and \t stand for what they stand for in C. A "#" where a word could start begins a comment.
//
//     request id=7 title="Install updates" cancellable     # words: request cancellable
struct ScenarioLine {
    std::vector<std::string> words;
    std::map<std::string, std::string> values;

    bool Has(std::string_view word) const;
    // The word at that place, or nothing.
    std::string Word(size_t at) const { return at < words.size() ? words[at] : ""; }
    std::string Value(std::string const& key, std::string const& fallback) const;
};

// Throws std::runtime_error when a quote is not closed.
ScenarioLine ParseScenarioLine(std::string_view text);

// A number with the unit s, m, h or d and perhaps a sign, as in 90s or -2h. Throws std::runtime_error for anything else.
std::chrono::seconds ParseSpan(std::string const& text);

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
