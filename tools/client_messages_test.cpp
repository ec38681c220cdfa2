#include "tools/client_messages.h"

#include <gtest/gtest.h>

namespace tools {

// What they mean where they are right, the scenarios show.
TEST(Scenarios, SayWhatIsWrongInALine) {
    EXPECT_THROW(ParseScenarioLine("raw \"open"), std::runtime_error);
    for (auto span : {"", "5", "m", "5x", "5 m"}) EXPECT_THROW(ParseSpan(span), std::runtime_error) << span;
    EXPECT_THROW(ReadAnswer("<?xml?><a><b><c>"), std::runtime_error);
}

TEST(Answers, AreReadWithTheirFields) {
    char const* document =
        "<UIToClient>\n\t<Error>\n\t\t<Text><![CDATA[a<b&amp;]]> c</Text><Code/>\n\t</Error></UIToClient>";
    EXPECT_EQ(ReadAnswer(document).Text(), "Error Code= Text=a<b&amp; c");
}

}  // namespace tools
