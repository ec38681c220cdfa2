#include "tools/scenario_player.h"

#include <fnmatch.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "tools/files.h"

namespace tools {

namespace {

constexpr size_t kLongestLogged = 800;
constexpr char const* kRowList = "form.viewport.List";

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

std::string Joined(std::set<std::string> const& paths) {
    std::string joined;
    for (auto const& path : paths) joined += " " + path;
    return joined;
}

// Takes "within SPAN" off the end of a line.
Milliseconds TakeLimit(ScenarioLine& line, Milliseconds otherwise) {
    auto const within = std::find(line.words.begin(), line.words.end(), "within");
    if (within == line.words.end() || std::next(within) == line.words.end()) return otherwise;
    otherwise = ParseSpan(*std::next(within));
    line.words.erase(within, line.words.end());
    return otherwise;
}

}  // namespace

void ScenarioPlayer::Play(std::string_view lines) {
    std::istringstream stream{std::string(lines)};
    for (std::string text; std::getline(stream, text);) {
        try {
            ScenarioLine line = Complete(ParseScenarioLine(text));
            limit_ = TakeLimit(line, std::chrono::seconds(10));
            if (options_.interactive) limit_ = std::chrono::hours(1);
            if (!line.words.empty()) PlayLine(line);
        } catch (std::runtime_error const& error) {
            throw std::runtime_error(text + ": " + error.what());
        }
    }
}

void ScenarioPlayer::PlayLine(ScenarioLine const& line) {
    static std::map<std::string, void (ScenarioPlayer::*)(ScenarioLine const&)> const verbs = {
        {"environment", &ScenarioPlayer::ChangeEnvironment},
        {"support-file", &ScenarioPlayer::AddSupportFile},
        {"expect", &ScenarioPlayer::Expect},
        {"wait", &ScenarioPlayer::WaitFor},
        {"click", &ScenarioPlayer::Click},
        {"press", &ScenarioPlayer::Press},
        {"select", &ScenarioPlayer::Select},
        {"drag", &ScenarioPlayer::Drag},
        {"key", &ScenarioPlayer::Type},
        {"wheel", &ScenarioPlayer::TurnWheel},
        {"resize", &ScenarioPlayer::Resize},
        {"work", &ScenarioPlayer::Work},
        {"point", &ScenarioPlayer::Point},
        {"screenshot", &ScenarioPlayer::Screenshot},
        {"open", &ScenarioPlayer::Open},
        {"close", &ScenarioPlayer::Close},
    };
    auto const verb = verbs.find(line.Word(0));
    if (verb != verbs.end()) return (this->*verb->second)(line);
    if (line.Word(0) == "raw") return SendDocument(line.Word(1));
    std::string const element = MessageFor(line, support_files_);
    if (element.empty()) throw std::runtime_error("unknown verb");
    SendDocument(Document(element));
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
    last_answer_ = ReadAnswer(*text);
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

void ScenarioPlayer::Expect(ScenarioLine const& line) {
    if (line.Word(1) == "exit") {
        std::string const ending = Program().WaitForEnd(limit_);
        if (ending != "exit " + line.Word(2)) throw std::runtime_error("the program: " + ending);
        return Log("program ended: " + ending, "");
    }
    Receive(limit_);
    bool const fits = last_answer_.name == line.Word(1) && (options_.interactive || Holds(last_answer_, line));
    if (!fits) throw std::runtime_error("came: " + last_answer_.Text());
}

void ScenarioPlayer::WaitFor(ScenarioLine const& line) {
    if (line.Word(1) == "window") return WaitForWindow(line);
    bool const reads_resources = line.Word(1) == "widget" || line.Word(1) == "sensitive";
    if (options_.interactive || (reads_resources && !options_.reads_resources)) return;
    auto wanted = line.values;
    if (line.Word(1) == "sensitive") wanted[""] = Joined({line.words.begin() + 2, line.words.end()});
    if (wanted.empty()) wanted[""] = line.words.back();
    for (auto const& value : wanted) {
        std::string found;
        auto const fits = [&] { return Matches(found = Look(line, value.first), value.second); };
        if (!WaitUntil(limit_, fits)) throw std::runtime_error("it is " + found);
    }
}

void ScenarioPlayer::WaitForWindow(ScenarioLine const& line) {
    if (line.Has("gone")) return Screen().WaitUntilGone(line.Word(2), limit_);
    window_ = Screen().WaitForWindow(line.Word(2), limit_, line.Has("again") ? window_ : Window(None));
}

// What the line waits for, as it is now; `key` is what it may call a part of that.
std::string ScenarioPlayer::Look(ScenarioLine const& line, std::string const& key) {
    std::string const what = line.Word(1);
    if (what == "widget") return Screen().ReadResource(window_, line.Word(2), key);
    if (what == "property") return Screen().ReadProperty(window_, key);
    if (what == "active") return Screen().ActiveWindow();
    if (what == "uppermost") return Screen().UppermostWindow();
    if (what == "focus") return Screen().OutlinedControls(window_);
    if (what == "sensitive") return Joined(Screen().SensitiveControls(window_));
    if (what == "text") return Screen().ReadText(window_, line.Word(2));
    if (what != "rows") throw std::runtime_error("nothing to wait for");
    size_t const one = std::stoul(line.Word(2)), other = std::stoul(line.Word(3));
    return Screen().LinesLookAlike(window_, kRowList, one, other) ? "alike" : "different";
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
    Screen().SelectLine(window_, line.Has("in") ? line.Word(4) : kRowList, std::stoul(line.Word(2)));
}

void ScenarioPlayer::Drag(ScenarioLine const& line) {
    if (Instructs("drag " + line.Word(1))) return;
    Screen().Drag(window_, line.Word(1), std::stod(line.Word(2)), std::stod(line.Word(3)),
                  static_cast<unsigned>(std::stoul(line.Value("button", "1"))));
}

void ScenarioPlayer::Type(ScenarioLine const& line) {
    for (size_t i = 1; i < line.words.size(); ++i) {
        if (!Instructs("type the key " + line.Word(i))) Screen().Type(line.Word(i));
    }
}

void ScenarioPlayer::TurnWheel(ScenarioLine const& line) {
    if (!Instructs("turn the wheel over " + line.Word(1))) Screen().TurnWheel(window_, line.Word(1), line.Has("up"));
}

void ScenarioPlayer::Resize(ScenarioLine const& line) {
    auto const pixels = [&](size_t word) { return static_cast<unsigned>(std::stoul(line.Word(word))); };
    if (!options_.interactive) Screen().Resize(window_, pixels(1), pixels(2));
}

void ScenarioPlayer::Point(ScenarioLine const& line) {
    if (!options_.interactive) Screen().PointAt(std::stoi(line.Word(1)), std::stoi(line.Word(2)));
}

void ScenarioPlayer::Work(ScenarioLine const& line) {
    if (!options_.interactive) Screen().WorkIn(line.Word(1));
}

void ScenarioPlayer::Screenshot(ScenarioLine const& line) {
    if (options_.interactive) return;
    auto file = options_.output / line.Word(1);
    if (window_) Screen().WaitUntilDrawn(window_);
    Screen().Screenshot(file, line.Has("window") ? window_ : 0);
    Log("screenshot: " + file.string(), "");
}

void ScenarioPlayer::Open(ScenarioLine const& line) {
    if (!WaitUntil(limit_, [this] { return Screen().FindHiddenWindow() != None; }))
        throw std::runtime_error("no hidden window");
    Screen().SendOpen(line.words.size() > 1 ? line.Word(1) : "open");
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

// Fills in what a scenario leaves out or keeps in a file.
ScenarioLine ScenarioPlayer::Complete(ScenarioLine line) const {
    auto const complete = [this](std::string& text) {
        if (text.starts_with('@')) text = ReadFile(options_.directory / text.substr(1));
    };
    for (auto& value : line.values) complete(value.second);
    for (auto& word : line.words) complete(word);
    if (line.Word(0) == "initialize") line.values.try_emplace("base", (options_.output / "base").string());
    return line;
}

void ScenarioPlayer::Log(std::string const& title, std::string_view text) {
    if (!options_.log) return;
    std::chrono::duration<double> const since_start = Clock::now() - start_;
    *options_.log << std::fixed << std::setprecision(3) << std::setw(8) << since_start.count() << " s  " << title;
    if (!text.empty()) *options_.log << ", " << text.size() << " bytes";
    *options_.log << std::endl;
    std::istringstream lines{std::string(text.substr(0, kLongestLogged))};
    for (std::string line; std::getline(lines, line);) *options_.log << "    " << line << std::endl;
    if (text.size() > kLongestLogged) *options_.log << "    ..." << std::endl;
}

}  // namespace tools
