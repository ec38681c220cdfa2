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

}  // namespace tools
