#include "tests/support/program_test.h"

class ExampleConversation : public ProgramTest {};

TEST_F(ExampleConversation, RunsAsDocumented) {
    auto const steps = FilesIn(EXAMPLE_CONVERSATION);
    ASSERT_FALSE(steps.empty());
    Prepare();
    for (auto const& step : steps) {
        auto const name = step.filename().string(), text = tools::ReadFile(step);
        SCOPED_TRACE(name);
        if (name.find("-client-") != name.npos) {
            // With a directory of the test's own in place of the example's.
            EXPECT_TRUE(Program().SendFrame(Replaced(text, "/run/corvane/ui", BaseDirectory().string())));
        } else if (name.find("-user-") != name.npos) {
            Play(text);
        } else {
            ASSERT_NE(name.find("-ui-"), name.npos);
            EXPECT_EQ(Receive(), text);
        }
    }
}
