#include "tests/support/program_test.h"

#include <fstream>

void ProgramTest::Prepare(Environment const& changes, std::vector<std::string> const& arguments) {
    tools::PlayerOptions options;
    options.launch.program = PROGRAM_UNDER_TEST;
    options.launch.environment = {{"DISPLAY", display_.Name()}, {"LC_ALL", "C"}, {"LANGUAGE", std::nullopt}};
    for (auto const& [name, value] : changes) options.launch.environment[name] = value;
    options.launch.arguments = arguments;
    options.launch.fixed_addresses = true;
    options.directory = SCENARIOS;
    options.output = Directory();
#ifdef __SANITIZE_ADDRESS__
    // Widgets lie where no outsider can name them.
    options.reads_resources = false;
#else
    options.reads_resources = tools::AddressesCanBeFixed();
#endif
    player_.emplace(options);
}

void ProgramTest::Start(Environment const& changes, std::vector<std::string> const& arguments) {
    Prepare(changes, arguments);
    Play("expect ReadyForData");
}

void ProgramTest::TearDown() {
    if (!player_) return;
    Program().CloseSending();
    EXPECT_EQ(Program().WaitForEnd(std::chrono::seconds(10)), ending_);
    EXPECT_EQ(Program().ReceiveFrame(std::chrono::milliseconds(0)).value_or("nothing"), "nothing");
}

std::string ProgramTest::Read(std::filesystem::path const& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}
