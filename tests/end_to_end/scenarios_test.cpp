#include "tests/support/program_test.h"

class Scenario : public ProgramTest, public ::testing::WithParamInterface<std::filesystem::path> {
  public:
    static std::set<std::filesystem::path> All() {
        auto all = FilesIn(SCENARIOS);
        std::erase_if(all, [](auto const& file) { return file.extension() != ".scenario"; });
        return all;
    }
    static std::string Name(::testing::TestParamInfo<std::filesystem::path> const& of) {
        return Replaced(of.param.stem(), "-", "_");
    }
};

// The stories of the demonstration, of which each says what must come of it.
TEST_P(Scenario, GoesAsItIsTold) {
    Display().StartWindowManager();
    Prepare();
    Play(tools::ReadFile(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, Scenario, ::testing::ValuesIn(Scenario::All()), Scenario::Name);

class Waiting : public ProgramTest {};

TEST_F(Waiting, FailsWhereItIsInVain) {
    Play("initialize\nrequest id=1 title=One\nwait window ActionRequestDialog");
    for (std::string vain : {"window ActionRequestDialog gone", "window MessageDialog", "property WM_HINTS=0"})
        EXPECT_THROW(Play("wait " + vain + " within 1s"), std::runtime_error) << vain;
}
