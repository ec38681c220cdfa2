#include <algorithm>
#include <set>

#include "tests/support/program_test.h"

namespace {

std::set<std::string> AllScenarios() {
    std::set<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(SCENARIOS)) {
        if (entry.path().extension() == ".scenario") names.insert(entry.path().stem().string());
    }
    return names;
}

class Scenario : public ProgramTest, public ::testing::WithParamInterface<std::string> {};

}  // namespace

// The stories of the demonstration, of which each says what must come of it.
TEST_P(Scenario, GoesAsItIsTold) {
    Display().StartWindowManager();
    Prepare();
    Play(Read(std::filesystem::path(SCENARIOS) / (GetParam() + ".scenario")));
}

INSTANTIATE_TEST_SUITE_P(All, Scenario, ::testing::ValuesIn(AllScenarios()), [](auto const& of) {
    std::string name = of.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});
