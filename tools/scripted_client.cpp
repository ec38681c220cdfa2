// Plays a scenario: starts the program as its client, sends it messages, uses its dialogs, checks its answers.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "tools/scenario_player.h"
#include "tools/virtual_display.h"

namespace {

char const* const usage =
    "usage: scripted_client [--interactive] [--virtual-display] [--output DIRECTORY] SCENARIO PROGRAM [ARGUMENT...]\n";

struct CommandLine {
    tools::PlayerOptions player;
    std::filesystem::path scenario;
    bool virtual_display = false;
};

std::optional<CommandLine> Read(std::vector<std::string> arguments) {
    CommandLine line;
    line.player.output = ".";
    auto at = arguments.begin();
    for (; at != arguments.end() && at->starts_with("--"); ++at) {
        if (*at == "--interactive")
            line.player.interactive = true;
        else if (*at == "--virtual-display")
            line.virtual_display = true;
        else if (*at == "--output" && at + 1 != arguments.end())
            line.player.output = *++at;
        else
            return std::nullopt;
    }
    if (arguments.end() - at < 2) return std::nullopt;
    line.scenario = *at++;
    line.player.launch.program = *at++;
    line.player.launch.arguments.assign(at, arguments.end());
    return line;
}

std::string Contents(std::filesystem::path const& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Play(CommandLine line) {
    std::optional<tools::VirtualDisplay> display;
    if (line.virtual_display) {
        display.emplace();
        display->StartWindowManager();
        line.player.launch.environment["DISPLAY"] = display->Name();
    }
    std::filesystem::create_directories(line.player.output);
    line.player.output = std::filesystem::absolute(line.player.output).lexically_normal();
    line.player.directory = line.scenario.parent_path();
    line.player.launch.fixed_addresses = true;
    line.player.reads_resources = !line.player.interactive && tools::AddressesCanBeFixed();
    line.player.log = &std::cout;
    tools::ScenarioPlayer player(line.player);
    player.Play(Contents(line.scenario));
    std::cout << "The client received: " << player.LastAnswer() << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
    auto line = Read({argv + 1, argv + argc});
    if (!line) {
        std::cerr << usage;
        return 2;
    }
    try {
        Play(*line);
        return 0;
    } catch (std::exception const& error) {
        std::cerr << "scripted_client: " << error.what() << std::endl;
        return 1;
    }
}
