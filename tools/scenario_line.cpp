#include "tools/scenario_line.h"

#include <algorithm>
#include <stdexcept>

namespace tools {

namespace {

char Unescape(char letter) {
    return letter == 'n' ? '\n' : letter == 't' ? '\t' : letter;
}

// Reads up to one of `stops` or a closing quote, whichever `text` starts with, and leaves the rest in `text`.
std::string TakeText(std::string_view& text, std::string_view stops) {
    std::string taken;
    bool quoted = text.starts_with('"');
    size_t at = quoted ? 1 : 0;
    for (; at < text.size() && (quoted ? text[at] != '"' : stops.find(text[at]) == stops.npos); ++at) {
        bool escaped = quoted && text[at] == '\\' && at + 1 < text.size();
        taken += escaped ? Unescape(text[++at]) : text[at];
    }
    if (quoted && at == text.size()) throw std::runtime_error("a quote is not closed");
    text.remove_prefix(quoted ? at + 1 : at);
    return taken;
}

}  // namespace

bool ScenarioLine::Has(std::string_view word) const {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string ScenarioLine::Value(std::string const& key, std::string const& fallback) const {
    auto found = values.find(key);
    return found == values.end() ? fallback : found->second;
}

ScenarioLine ParseScenarioLine(std::string_view text) {
    ScenarioLine line;
    std::string_view const blanks = " \t\r\n";
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
        if (text.empty() || text.front() == '#') return line;
        std::string word = TakeText(text, " \t\r\n=");
        if (text.starts_with('=')) {
            text.remove_prefix(1);
            line.values[word] = TakeText(text, blanks);
        } else {
            line.words.push_back(word);
        }
    }
}

std::chrono::seconds ParseSpan(std::string const& text) {
    static std::map<std::string, std::chrono::seconds> const units = {{"s", std::chrono::seconds(1)},
                                                                      {"m", std::chrono::minutes(1)},
                                                                      {"h", std::chrono::hours(1)},
                                                                      {"d", std::chrono::days(1)}};
    try {
        size_t used = 0;
        long long const count = std::stoll(text, &used);
        return count * units.at(text.substr(used));
    } catch (std::logic_error const&) {
        throw std::runtime_error("not a span of time: " + text);
    }
}

}  // namespace tools
