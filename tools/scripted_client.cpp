// Plays a scenario: starts the program as its client, sends it messages, uses its dialogs, checks its answers.
#include <getopt.h>

#include <filesystem>
#include <iostream>
#include <optional>

#include "tools/files.h"
#include "tools/scenario_player.h"
#include "tools/virtual_display.h"

namespace {

constexpr char const* kUsage =
    "usage: scripted_client [--interactive] [--virtual-display] [--output DIRECTORY] SCENARIO PROGRAM [ARGUMENT...]\n";

struct CommandLine {
    tools::PlayerOptions player;
    std::filesystem::path scenario;
    bool virtual_display = false;
};

std::optional<CommandLine> Read(int argc, char** argv) {
    static option const options[] = {{"interactive", no_argument, nullptr, 'i'},
                                     {"virtual-display", no_argument, nullptr, 'v'},
                                     {"output", required_argument, nullptr, 'o'},
                                     {}};
    CommandLine line;
    line.player.output = ".";
    for (int option = 0; (option = getopt_long(argc, argv, "+", options, nullptr)) != -1;) {
        if (option == 'i') line.player.interactive = true;
        if (option == 'v') line.virtual_display = true;
        if (option == 'o') line.player.output = optarg;
        if (option == '?') return std::nullopt;
    }
    if (argc - optind < 2) return std::nullopt;
    line.scenario = argv[optind];
    line.player.launch.program = argv[optind + 1];
    line.player.launch.arguments.assign(argv + optind + 2, argv + argc);
    return line;
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
    player.Play(tools::ReadFile(line.scenario));
    std::cout << "The client received: " << player.LastAnswer() << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
    auto const line = Read(argc, argv);
    if (!line) {
        std::cerr << kUsage;
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
