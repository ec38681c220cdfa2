#include "tools/client_messages.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tools/files.h"
#include "tools/scenario_player.h"

namespace tools {

// What they mean where they are right, the scenarios show.
TEST(Scenarios, SayWhatIsWrongInALine) {
    EXPECT_THROW(ParseScenarioLine("raw \"open"), std::runtime_error);
    for (auto span : {"", "5", "m", "5x", "5 m"}) EXPECT_THROW(ParseSpan(span), std::runtime_error) << span;
    EXPECT_THROW(ReadAnswer("<?xml?><a><b><c>"), std::runtime_error);
}

// Against a program that gives one answer and ends.
TEST(Scenarios, FailWhereSomethingElseComes) {
    TemporaryDirectory directory;
    auto const play = [file = directory.Path() / "frame"](std::string const& text, char const* line) {
        std::ofstream(file) << Frame(text);
        PlayerOptions options;
        options.launch = {.program = "cat", .arguments = {file}};
        ScenarioPlayer(options).Play(line);
    };
    auto const elements = "<U><A><T><![CDATA[" + TimeText(std::chrono::system_clock::now()) + "]]></T></A></U>";
    auto const answer = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + elements;
    for (auto right : {"expect A", "expect A T=+0s", "expect A T=*+0000", "expect exit 0"}) play(answer, right);
    for (auto wrong : {"expect T", "expect A U=1", "expect A T=*1", "expect A T=+1m", "expect exit 1"})
        EXPECT_THROW(play(answer, wrong), std::runtime_error) << wrong;
    EXPECT_THROW(play(elements, "expect A"), std::runtime_error);
}

}  // namespace tools
