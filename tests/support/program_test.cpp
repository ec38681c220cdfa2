#include "tests/support/program_test.h"

void ProgramTest::Prepare(Environment const& changes, std::vector<std::string> const& arguments) {
    Environment environment = changes;
    environment.insert({{"DISPLAY", display_.Name()}, {"LC_ALL", "C"}, {"LANGUAGE", std::nullopt}});
    tools::PlayerOptions options;
    options.launch = {.program = program_, .arguments = arguments, .environment = environment, .fixed_addresses = true};
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

void ProgramTest::Play(std::string_view lines) {
    if (!player_) Start();
    player_->Play(lines);
}

void ProgramTest::TearDown() {
    Program().CloseSending();
    EXPECT_EQ(Program().WaitForEnd(std::chrono::seconds(10)), ending_);
    EXPECT_EQ(Program().ReceiveFrame(std::chrono::milliseconds(0)).value_or("nothing"), "nothing");
}

std::string ProgramTest::Repeated(std::string_view unit, size_t size) {
    std::string text;
    while (text.size() + unit.size() <= size) text += unit;
    return text;
}

std::string ProgramTest::Replaced(std::string text, std::string_view part, std::string_view by) {
    for (size_t at = 0; (at = text.find(part, at)) != text.npos; at += by.size()) text.replace(at, part.size(), by);
    return text;
}

std::set<std::filesystem::path> ProgramTest::FilesIn(std::filesystem::path const& directory) {
    return {std::filesystem::directory_iterator(directory), std::filesystem::directory_iterator()};
}
