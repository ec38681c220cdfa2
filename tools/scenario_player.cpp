#include "tools/scenario_player.h"

#include <fnmatch.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "tools/client_messages.h"

namespace tools {

namespace {

size_t const longest_logged = 800;
char const* const row_list = "form.viewport.List";
char const* const hidden_window = "QENClientUIHiddenWindow";

std::string Stamp() {
    auto now = std::chrono::system_clock::now();
    std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    auto millis = std::chrono::duration_cast<Milliseconds>(now.time_since_epoch()).count() % 1000;
    std::ostringstream stamp;
    stamp << std::put_time(&parts, "%H:%M:%S.") << std::setfill('0') << std::setw(3) << millis;
    return stamp.str();
}

bool Matches(std::string const& text, std::string const& pattern) {
    return fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
}

// Whether `text` is the instant that `span` from now was a moment ago.
bool IsInstant(std::string const& text, std::string const& span) {
    auto const instant = std::chrono::system_clock::now() + ParseSpan(span);
    for (std::chrono::seconds ago(0); ago < std::chrono::seconds(10); ++ago) {
        if (TimeText(instant - ago) == text) return true;
    }
    return false;
}

bool Fits(std::string const& text, std::string const& wanted) {
    return wanted.starts_with('+') ? IsInstant(text, wanted) : Matches(text, wanted);
}

bool Holds(Answer const& answer, ScenarioLine const& line) {
    return std::all_of(line.values.begin(), line.values.end(), [&](auto const& value) {
        auto field = answer.fields.find(value.first);
        return field != answer.fields.end() && Fits(field->second, value.second);
    });
}

}  // namespace

void ScenarioPlayer::Play(std::string_view lines) {
    std::istringstream stream{std::string(lines)};
    for (std::string text; std::getline(stream, text);) {
        try {
            ScenarioLine line = ParseScenarioLine(text);
            if (!line.words.empty()) PlayLine(Complete(line));
        } catch (std::runtime_error const& error) {
            throw std::runtime_error(text + ": " + error.what());
        }
    }
}

void ScenarioPlayer::PlayLine(ScenarioLine const& line) {
    static std::map<std::string, Verb> const verbs = {
        {"environment", &ScenarioPlayer::ChangeEnvironment},
        {"support-file", &ScenarioPlayer::AddSupportFile},
        {"raw", &ScenarioPlayer::SendRaw},
        {"expect", &ScenarioPlayer::Expect},
        {"wait", &ScenarioPlayer::WaitFor},
        {"click", &ScenarioPlayer::Click},
        {"press", &ScenarioPlayer::Press},
        {"select", &ScenarioPlayer::Select},
        {"drag", &ScenarioPlayer::Drag},
        {"screenshot", &ScenarioPlayer::Screenshot},
        {"open", &ScenarioPlayer::Open},
        {"close", &ScenarioPlayer::Close},
    };
    auto verb = verbs.find(line.Word(0));
    if (verb != verbs.end()) return (this->*verb->second)(line);
    std::string message = MessageFor(line, support_files_);
    if (message.empty()) throw std::runtime_error("unknown verb");
    SendDocument(Document(message));
}

std::string ScenarioPlayer::DocumentFor(std::string_view lines) const {
    std::istringstream stream{std::string(lines)};
    std::string elements;
    for (std::string text; std::getline(stream, text);) {
        elements += MessageFor(Complete(ParseScenarioLine(text)), support_files_);
    }
    return Document(elements);
}

void ScenarioPlayer::SendDocument(std::string const& document) {
    Log("client -> program", document);
    if (!Program().SendFrame(document)) throw std::runtime_error("the program does not read");
}

std::string ScenarioPlayer::Receive(Milliseconds limit) {
    auto text = Program().ReceiveFrame(limit);
    if (!text) throw std::runtime_error("no answer; the program: " + Program().WaitForEnd(Milliseconds(0)));
    Log("program -> client", *text);
    last_answer_ = ReadAnswer(*text).Text();
    return *text;
}

ClientProcess& ScenarioPlayer::Program() {
    if (!program_) program_.emplace(options_.launch);
    return *program_;
}

DisplayDriver& ScenarioPlayer::Screen() {
    if (!screen_) {
        auto display = options_.launch.environment.find("DISPLAY");
        bool own = display != options_.launch.environment.end() && display->second;
        screen_ = std::make_unique<DisplayDriver>(own ? *display->second : "");
    }
    return *screen_;
}

void ScenarioPlayer::ChangeEnvironment(ScenarioLine const& line) {
    if (program_) throw std::runtime_error("the program runs already");
    for (auto const& [name, value] : line.values) options_.launch.environment[name] = value;
}

void ScenarioPlayer::AddSupportFile(ScenarioLine const& line) {
    support_files_ += SupportFile(line.Word(1), line.Word(2));
}

void ScenarioPlayer::SendRaw(ScenarioLine const& line) {
    SendDocument(line.Word(1));
}

void ScenarioPlayer::Expect(ScenarioLine const& line) {
    if (line.Word(1) == "exit") {
        std::string ending = Program().WaitForEnd(LimitOf(line));
        if (ending != "exit " + line.Word(2)) throw std::runtime_error("the program: " + ending);
        return Log("program ended: " + ending, "");
    }
    Answer answer = ReadAnswer(Receive(LimitOf(line)));
    bool fits = answer.name == line.Word(1) && (options_.interactive || Holds(answer, line));
    if (!fits) throw std::runtime_error("came: " + answer.Text());
}

void ScenarioPlayer::WaitFor(ScenarioLine const& line) {
    if (line.Word(1) == "widget") return WaitForResource(line, LimitOf(line));
    if (line.Word(1) == "property") return WaitForProperty(line, LimitOf(line));
    if (line.Word(1) == "active") return WaitForActivity(line, LimitOf(line));
    if (line.Word(1) == "sensitive") return WaitForSensitivity(line, LimitOf(line));
    if (line.Word(1) == "rows") return WaitForRows(line, LimitOf(line));
    if (line.Word(1) == "text") return WaitForText(line, LimitOf(line));
    if (line.Has("gone")) return Screen().WaitUntilGone(line.Word(2), LimitOf(line));
    window_ = Screen().WaitForWindow(line.Word(2), LimitOf(line), line.Has("again") ? window_ : Window(None));
}

void ScenarioPlayer::WaitForResource(ScenarioLine const& line, Milliseconds limit) {
    if (!options_.reads_resources) return;
    for (auto const& value : line.values) {
        std::string found;
        auto fits = [&] {
            found = Screen().ReadResource(window_, line.Word(2), value.first);
            return Matches(found, value.second);
        };
        if (!WaitUntil(limit, fits)) throw std::runtime_error("it is " + found);
    }
}

void ScenarioPlayer::WaitForProperty(ScenarioLine const& line, Milliseconds limit) {
    if (options_.interactive) return;
    for (auto const& value : line.values) {
        std::string found;
        auto fits = [&] { return Matches(found = Screen().ReadProperty(window_, value.first), value.second); };
        if (!WaitUntil(limit, fits)) throw std::runtime_error(value.first + " is " + found);
    }
}

void ScenarioPlayer::WaitForActivity(ScenarioLine const& line, Milliseconds limit) {
    if (options_.interactive) return;
    if (WaitUntil(limit, [&] { return Screen().ActiveWindow() == line.Word(2); })) return;
    throw std::runtime_error("it is " + Screen().ActiveWindow());
}

void ScenarioPlayer::WaitForSensitivity(ScenarioLine const& line, Milliseconds limit) {
    if (!options_.reads_resources) return;
    std::set<std::string> wanted(line.words.begin() + 2, std::find(line.words.begin(), line.words.end(), "within"));
    if (WaitUntil(limit, [&] { return Screen().SensitiveControls(window_) == wanted; })) return;
    std::string found;
    for (auto const& path : Screen().SensitiveControls(window_)) found += " " + path;
    throw std::runtime_error("it is" + found);
}

void ScenarioPlayer::WaitForRows(ScenarioLine const& line, Milliseconds limit) {
    if (options_.interactive) return;
    auto row = [&](size_t word) { return std::stoul(line.Word(word)); };
    auto alike = [&] { return Screen().LinesLookAlike(window_, row_list, row(2), row(3)); };
    if (!WaitUntil(limit, alike)) throw std::runtime_error("they differ");
}

void ScenarioPlayer::WaitForText(ScenarioLine const& line, Milliseconds limit) {
    if (options_.interactive) return;
    std::string found;
    auto fits = [&] { return Matches(found = Screen().ReadText(window_, line.Word(2)), line.Word(3)); };
    if (!WaitUntil(limit, fits)) throw std::runtime_error("it is " + found);
}

void ScenarioPlayer::Click(ScenarioLine const& line) {
    if (!Instructs("press " + (line.words.size() > 2 ? line.Word(2) : line.Word(1))))
        Screen().Click(window_, line.Word(1));
}

void ScenarioPlayer::Press(ScenarioLine const& line) {
    if (!options_.interactive) Screen().Press(window_, line.Word(1));
}

void ScenarioPlayer::Select(ScenarioLine const& line) {
    if (Instructs("select row " + line.Word(2) + " of the list")) return;
    Screen().SelectLine(window_, line.Has("in") ? line.Word(4) : row_list, std::stoul(line.Word(2)));
}

void ScenarioPlayer::Drag(ScenarioLine const& line) {
    if (Instructs("drag " + line.Word(1))) return;
    Screen().Drag(window_, line.Word(1), std::stod(line.Word(2)), std::stod(line.Word(3)),
                  static_cast<unsigned>(std::stoul(line.Value("button", "1"))));
}

void ScenarioPlayer::Screenshot(ScenarioLine const& line) {
    if (options_.interactive) return;
    auto file = options_.output / line.Word(1);
    if (window_) Screen().WaitUntilDrawn(window_);
    Screen().Screenshot(file, line.Has("window") ? window_ : 0);
    Log("screenshot: " + file.string(), "");
}

void ScenarioPlayer::Open(ScenarioLine const&) {
    DisplayDriver& screen = Screen();
    Window window = 0;
    if (!WaitUntil(std::chrono::seconds(10), [&] { return (window = screen.FindWindow(hidden_window)) != 0; })) {
        throw std::runtime_error("no hidden window");
    }
    screen.SendText(window, "open");
}

void ScenarioPlayer::Close(ScenarioLine const& line) {
    if (line.Has("window")) return Screen().RequestClose(window_);
    Program().CloseReceiving();
    if (!line.Has("reading")) Program().CloseSending();
}

bool ScenarioPlayer::Instructs(std::string const& instruction) {
    if (options_.interactive) Log("please: " + instruction, "");
    return options_.interactive;
}

Milliseconds ScenarioPlayer::LimitOf(ScenarioLine const& line) const {
    if (options_.interactive) return std::chrono::hours(1);
    auto within = std::find(line.words.begin(), line.words.end(), "within");
    return within == line.words.end() ? std::chrono::seconds(10) : ParseSpan(*std::next(within));
}

// Fills in what a scenario leaves out or keeps in a file.
ScenarioLine ScenarioPlayer::Complete(ScenarioLine line) const {
    for (auto& [key, value] : line.values) {
        if (value.starts_with('@')) value = ReadFile(value.substr(1));
    }
    for (auto& word : line.words) {
        if (word.starts_with('@')) word = ReadFile(word.substr(1));
    }
    if (line.Word(0) == "initialize") line.values.try_emplace("base", (options_.output / "base").string());
    return line;
}

std::string ScenarioPlayer::ReadFile(std::string const& name) const {
    std::ifstream file(options_.directory / name, std::ios::binary);
    if (!file) throw std::runtime_error("no file " + name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void ScenarioPlayer::Log(std::string const& title, std::string_view text) {
    if (!options_.log) return;
    *options_.log << Stamp() << "  " << title;
    if (!text.empty()) *options_.log << ", " << text.size() << " bytes";
    *options_.log << std::endl;
    std::istringstream lines{std::string(text.substr(0, longest_logged))};
    for (std::string line; std::getline(lines, line);) *options_.log << "    " << line << std::endl;
    if (text.size() > longest_logged) *options_.log << "    ..." << std::endl;
}

}  // namespace tools
