#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "tools/files.h"
#include "tools/scenario_player.h"
#include "tools/virtual_display.h"

// A test of the whole program: started as its client starts it, on an X server and in a directory of its own, in the C
// locale unless told otherwise. The cases are written in the lines that tools/README.md describes.
//
// Every case ends with the client closing its pipes: then the program must have said nothing that the case did not ask
// for, and must end as `ending_` says.
class ProgramTest : public ::testing::Test {
  protected:
    explicit ProgramTest(std::string const& display_size = "1280x1024") : display_(display_size) {}

    using Environment = std::map<std::string, std::optional<std::string>>;

    // Plays lines; starts the program first, with nothing changed, unless that is done or prepared.
    void Play(std::string_view lines);
    // Starts the program with changes to its environment, and takes its greeting.
    void Start(Environment const& changes = {}, std::vector<std::string> const& arguments = {});
    // Only gets everything ready for the lines of a whole scenario, which start it.
    void Prepare(Environment const& changes = {}, std::vector<std::string> const& arguments = {});
    void TearDown() override;

    tools::ClientProcess& Program() { return player_->Program(); }
    tools::DisplayDriver& Screen() { return player_->Screen(); }
    tools::VirtualDisplay& Display() { return display_; }
    // The document that message lines stand for.
    std::string Document(std::string_view lines) const { return player_->DocumentFor(lines); }
    // A message that is answered without a user: an overdue action that must run.
    std::string Overdue(int id) const {
        return Document("request title=Overdue force deadline=-1h id=" + std::to_string(id));
    }
    // The next answer to the byte; throws when there is none.
    std::string Receive() { return player_->Receive(std::chrono::seconds(10)); }
    std::filesystem::path const& Directory() const { return directory_.Path(); }
    // The one the program is told to use unless a case names another.
    std::filesystem::path BaseDirectory() const { return Directory() / "base"; }

    // The longest document that the program accepts, in bytes.
    static constexpr size_t kLargestPayload = 2097152;
    // The unit over and over, as often as that size holds it.
    static std::string Repeated(std::string_view unit, size_t size);
    // The text with `by` in place of each `part`.
    static std::string Replaced(std::string text, std::string_view part, std::string_view by);
    // All that lies in a directory.
    static std::set<std::filesystem::path> FilesIn(std::filesystem::path const& directory);

    // What is started: the program, or what becomes it.
    std::string program_ = PROGRAM_UNDER_TEST;
    std::string ending_ = "exit 0";

  private:
    tools::TemporaryDirectory directory_;
    tools::VirtualDisplay display_;
    std::optional<tools::ScenarioPlayer> player_;
};
