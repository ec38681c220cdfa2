// Runs the program for long with a client and a user who do anything, and ends it at any moment in any way.
#include <getopt.h>

#include <iostream>
#include <optional>

#include "tools/soak/subject.h"

namespace {

constexpr char const* kUsage = "usage: soak [--minutes N] [--endings N] [--seed N] [--window-manager] PROGRAM\n";

struct CommandLine {
    tools::SoakOptions options;
    int minutes = 0;
    int endings = 0;
};

std::optional<CommandLine> Read(int argc, char** argv) try {
    static option const options[] = {{"minutes", required_argument, nullptr, 'm'},
                                     {"endings", required_argument, nullptr, 'e'},
                                     {"seed", required_argument, nullptr, 's'},
                                     {"window-manager", no_argument, nullptr, 'w'},
                                     {}};
    CommandLine line;
    for (int option = 0; (option = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        if (option == 'm') line.minutes = std::stoi(optarg);
        if (option == 'e') line.endings = std::stoi(optarg);
        if (option == 's') line.options.seed = static_cast<unsigned>(std::stoul(optarg));
        if (option == 'w') line.options.window_manager = true;
        if (option == '?') return std::nullopt;
    }
    if (argc - optind != 1) return std::nullopt;
    line.options.program = argv[optind];
    return line;
} catch (std::logic_error const&) {
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    auto const line = Read(argc, argv);
    if (!line) {
        std::cerr << kUsage;
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
