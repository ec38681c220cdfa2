#include "tools/client_messages.h"

#include <algorithm>
#include <ctime>
#include <pugixml.hpp>
#include <stdexcept>
#include <vector>

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

enum class Kind { Text, Time, Flag };

struct Field {
    char const* key;
    char const* element;
    Kind kind = Kind::Text;
};

std::vector<Field> const kRequestFields = {{"confirm", "PreActionMessage"},
                                           {"deadline", "Deadline", Kind::Time},
                                           {"description", "ShortDescription"},
                                           {"preview", "Preview"},
                                           {"id", "ID"},
                                           {"title", "Title"},
                                           {"cancellable", "Cancellable", Kind::Flag},
                                           {"restart", "Restart", Kind::Flag},
                                           {"shutdown", "Shutdown", Kind::Flag},
                                           {"force", "ForceRun", Kind::Flag},
                                           {"save", "RequestSave", Kind::Flag},
                                           {"canned", "UseCannedStrings", Kind::Flag}};
std::vector<Field> const kMessageFields = {{"completion", "IsCompletionMessage", Kind::Flag},
                                           {"timeout", "Timeout"},
                                           {"title", "Title"},
                                           {"text", "Message"},
                                           {"id", "ID"}};
std::vector<Field> const kQuietFields = {{"start", "StartTime", Kind::Time}, {"end", "EndTime", Kind::Time}};
std::vector<Field> const kBaseFields = {{"base", "BaseDirectory"}};
std::vector<Field> const kSettingsFields = {{"remind", "RemindInterval"},
                                            {"remind-time", "RemindTime", Kind::Time},
                                            {"snooze", "AllowSnooze", Kind::Flag},
                                            {"locale", "UseLocale", Kind::Flag}};

std::string ContentOf(Kind kind, std::string const& value) {
    if (kind == Kind::Flag) return value == "no" ? "false" : "true";
    bool relative = value.starts_with('+') || value.starts_with('-');
    if (kind == Kind::Time && relative) return TimeText(std::chrono::system_clock::now() + ParseSpan(value));
    return Escape(value);
}

std::string Elements(ScenarioLine const& line, std::vector<Field> const& fields) {
    std::string elements;
    for (Field const& field : fields) {
        if (field.kind == Kind::Flag && line.Has(field.key)) elements += Element(field.element, "true");
        auto value = line.values.find(field.key);
        if (value != line.values.end()) elements += Element(field.element, ContentOf(field.kind, value->second));
    }
    return elements;
}

std::string Removal(ScenarioLine const& line) {
    std::string type = line.Word(1);
    if (!type.empty()) type[0] = static_cast<char>(type[0] - 'a' + 'A');
    return Element("RemoveRequest", Element("RemoveType", type) + Element("ID", line.Word(2)));
}

std::string Base64(std::string_view bytes) {
    std::string_view const digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    unsigned waiting = 0, bits = 0;
    for (char byte : bytes) {
        waiting = waiting << 8 | static_cast<unsigned char>(byte);
        for (bits += 8; bits >= 6; bits -= 6) text += digits[waiting >> (bits - 6) & 63];
    }
    if (bits > 0) text += digits[waiting << (6 - bits) & 63];
    return text.append((4 - text.size() % 4) % 4, '=');
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

std::string Element(std::string_view name, std::string_view content) {
    return std::string("<").append(name).append(">").append(content).append("</").append(name).append(">");
}

std::string Escape(std::string_view text) {
    static std::map<char, char const*> const references = {{'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}};
    std::string escaped;
    for (char letter : text) {
        auto const found = references.find(letter);
        escaped += found == references.end() ? std::string(1, letter) : found->second;
    }
    return escaped;
}

std::string Document(std::string_view elements) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + Element("ClientToUI", elements);
}

std::string TimeText(std::chrono::system_clock::time_point time) {
    std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[64];
    std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S +0000", &parts);
    return text;
}

std::string SupportFile(std::string_view name, std::string_view bytes) {
    return Element("SupportFiles",
                   Element("FileName", Escape(name)) + Element("SubFolder", "") + Element("Content", Base64(bytes)));
}

std::string MessageFor(ScenarioLine const& line, std::string_view support_files) {
    std::string verb = line.Word(0);
    if (verb == "request") return Element("ActionRequest", Elements(line, kRequestFields));
    if (verb == "message") return Element("MessageRequest", Elements(line, kMessageFields));
    if (verb == "remove") return Removal(line);
    if (verb == "quiet" && line.Has("end")) return Element("QuietModeEnd", "");
    if (verb == "quiet") return Element("QuietModeStart", Elements(line, kQuietFields));
    if (verb != "initialize") return {};
    return Element("InitializationInfo", Elements(line, kBaseFields).append(support_files) +
                                             Element("InitialUISettings", Elements(line, kSettingsFields)));
}

std::string Answer::Text() const {
    std::string text = name;
    for (auto const& [field, value] : fields) text += " " + field + "=" + value;
    return text;
}

Answer ReadAnswer(std::string_view text) {
    auto const is_element = [](pugi::xml_node node) { return node.type() == pugi::node_element; };
    pugi::xml_document document;
    unsigned const as_it_stands = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_ws_pcdata;
    if (!document.load_buffer(text.data(), text.size(), as_it_stands, pugi::encoding_utf8))
        throw std::runtime_error("not a document: " + std::string(text));
    auto const message = document.document_element().find_child(is_element);
    Answer answer{message.name(), {}};
    for (auto field : message.children()) {
        if (!is_element(field)) continue;
        auto& value = answer.fields[field.name()];
        for (auto piece : field.children()) value += piece.value();
    }
    return answer;
}

}  // namespace tools
