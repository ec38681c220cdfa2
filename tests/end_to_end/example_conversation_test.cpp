#include <set>

#include "tests/support/program_test.h"

namespace {

class ExampleConversation : public ProgramTest {
  protected:
    // The document with a directory of the test's own in place of the example's.
    std::string WithBaseDirectory(std::string document) const {
        std::string const example = "/run/corvane/ui";
        if (auto at = document.find(example); at != document.npos) {
            document.replace(at, example.size(), BaseDirectory().string());
        }
        return document;
    }

    void PlayStep(std::string const& name, std::string const& text) {
        SCOPED_TRACE(name);
        if (name.find("-client-") != name.npos) {
            EXPECT_TRUE(Program().SendFrame(WithBaseDirectory(text)));
        } else if (name.find("-user-") != name.npos) {
            Play(text);
        } else {
            ASSERT_NE(name.find("-ui-"), name.npos);
            EXPECT_EQ(Receive(), text);
        }
    }
};

}  // namespace

TEST_F(ExampleConversation, RunsAsDocumented) {
    std::set<std::filesystem::path> steps;
    for (auto const& entry : std::filesystem::directory_iterator(EXAMPLE_CONVERSATION)) steps.insert(entry.path());
    ASSERT_FALSE(steps.empty());

    // The greeting comes before anybody can play.
    auto const greeting = steps.extract(steps.begin()).value();
    EXPECT_EQ(tools::ClientProcess({PROGRAM_UNDER_TEST, {}}).ReceiveFrame(std::chrono::seconds(1)), Read(greeting));
    Start();
    for (auto const& step : steps) PlayStep(step.filename().string(), Read(step));
}
