#include <fcntl.h>

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

TEST(ExampleClient, PrintsWhatTheUserDecides) {
    tools::VirtualDisplay display;
    tools::TemporaryDirectory directory;
    tools::PlayerOptions options;
    options.launch = {"python3", {EXAMPLE_CLIENT, PROGRAM_UNDER_TEST}, {{"DISPLAY", display.Name()}, {"LC_ALL", "C"}}};
    auto const printed = directory.Path() / "printed";
    tools::Descriptor const output(open(printed.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    tools::ChildProcess client(options.launch, -1, output.Get());
    tools::ScenarioPlayer user(options);
    user.Play("wait window ActionRequestDialog\nselect row 1\nclick form.takeActions\nwait window MessageDialog");
    user.Play("wait window ActionRequestDialog\nclick form.cancelAction");
    EXPECT_EQ(client.WaitForEnd(std::chrono::seconds(20)), "exit 0");
    EXPECT_EQ(
        tools::ReadFile(printed),
        "ReadyForData\nActionTaken IsCancel=false IsOffer=false ID=1\nActionTaken IsCancel=true IsOffer=false ID=2\n");
}
