// Runs the program for long with a client and a user who do anything, and ends it at any moment in any way.
#include <iostream>
#include <optional>
#include <vector>

#include "tools/soak/subject.h"

namespace {

char const* const usage = "usage: soak [--minutes N] [--endings N] [--seed N] [--window-manager] PROGRAM\n";

struct CommandLine {
    tools::SoakOptions options;
    int minutes = 0;
    int endings = 0;
};

std::optional<CommandLine> Read(std::vector<std::string> const& arguments) try {
    CommandLine line;
    auto at = arguments.begin();
    for (; at != arguments.end() && at->starts_with("--"); ++at) {
        std::string const& name = *at;
        if (name == "--window-manager") {
            line.options.window_manager = true;
            continue;
        }
        if (++at == arguments.end()) return std::nullopt;
        if (name == "--minutes") line.minutes = std::stoi(*at);
        if (name == "--endings") line.endings = std::stoi(*at);
        if (name == "--seed") line.options.seed = static_cast<unsigned>(std::stoul(*at));
    }
    if (arguments.end() - at != 1) return std::nullopt;
    line.options.program = *at;
    return line;
} catch (std::logic_error const&) {
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    auto const line = Read({argv + 1, argv + argc});
    if (!line) {
        std::cerr << usage;
        return 2;
    }
    try {
        bool right = line->minutes == 0 || tools::RunForLong(line->options, line->minutes);
        right &= line->endings == 0 || tools::EndManyTimes(line->options, line->endings);
        return right ? 0 : 1;
    } catch (std::exception const& error) {
        std::cerr << "soak: " << error.what() << std::endl;
        return 1;
    }
}
