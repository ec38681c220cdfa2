#include "tests/support/program_test.h"

#include <fstream>

void ProgramTest::Start(Environment const& changes) {
    tools::PlayerOptions options;
    options.launch.program = PROGRAM_UNDER_TEST;
    options.launch.environment = {{"DISPLAY", display_.Name()},
                                  {"LC_ALL", "C"},
                                  {"LANGUAGE", std::nullopt},
                                  {"ASAN_OPTIONS", "malloc_context_size=2"},
                                  {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAKS_OF_THE_TOOLKIT}};
    for (auto const& [name, value] : changes) options.launch.environment[name] = value;
    options.launch.fixed_addresses = true;
    options.output = Directory();
    player_.emplace(options);
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
