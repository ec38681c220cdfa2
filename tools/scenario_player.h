#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "tools/client_messages.h"
#include "tools/client_process.h"
#include "tools/display_driver.h"

namespace tools {

struct PlayerOptions {
    Launch launch;
    std::filesystem::path directory;  // where files named with "@" lie
    std::filesystem::path output;     // for screenshots, and for the program's base directory
    bool interactive = false;         // asks the person at the display instead of moving the pointer
    bool reads_resources = true;      // lines that ask for a widget's resources do so; otherwise they are passed over
    std::ostream* log = nullptr;      // for every message that crosses the pipes, and every instruction
};

// Plays the client's part, and the user's, from the lines of a scenario. tools/README.md describes them.
//
// What a line expects and does not find throws std::runtime_error that quotes the line.
class ScenarioPlayer {
  public:
    explicit ScenarioPlayer(PlayerOptions options) : options_(std::move(options)) {}

    void Play(std::string_view lines);

    // The document that message lines stand for, all their elements in one.
    std::string DocumentFor(std::string_view lines) const;
    void SendDocument(std::string const& document);
    // The next answer; throws std::runtime_error when none comes within `limit`.
    std::string Receive(Milliseconds limit);
    // Its name and fields in one line; empty before the first.
    std::string LastAnswer() const { return last_answer_.Text(); }

    // Starts the program at the first use.
    ClientProcess& Program();
    // Connects at the first use.
    DisplayDriver& Screen();

  private:
    void PlayLine(ScenarioLine const& line);
    void ChangeEnvironment(ScenarioLine const& line);
    void AddSupportFile(ScenarioLine const& line);
    void Expect(ScenarioLine const& line);
    void WaitFor(ScenarioLine const& line);
    void WaitForWindow(ScenarioLine const& line);
    std::string Look(ScenarioLine const& line, std::string const& key);
    void Click(ScenarioLine const& line);
    void Press(ScenarioLine const& line);
    void Select(ScenarioLine const& line);
    void Drag(ScenarioLine const& line);
    void Type(ScenarioLine const& line);
    void TurnWheel(ScenarioLine const& line);
    void Resize(ScenarioLine const& line);
    void Point(ScenarioLine const& line);
    void Work(ScenarioLine const& line);
    void Screenshot(ScenarioLine const& line);
    void Open(ScenarioLine const& line);
    void Close(ScenarioLine const& line);

    bool Instructs(std::string const& instruction);
    ScenarioLine Complete(ScenarioLine line) const;
    void Log(std::string const& title, std::string_view text);

    PlayerOptions options_;
    Clock::time_point start_ = Clock::now();
    std::optional<ClientProcess> program_;
    std::unique_ptr<DisplayDriver> screen_;
    std::string support_files_;
    Answer last_answer_;
    Milliseconds limit_{};  // how long the line that is being played may wait
    Window window_ = 0;     // the one waited for last, which clicks are meant for
};

}  // namespace tools
