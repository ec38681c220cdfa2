#include "tools/client_messages.h"

#include <gtest/gtest.h>

namespace tools {

TEST(ScenarioLine, TakesWordsValuesQuotesAndComments) {
    ScenarioLine line = ParseScenarioLine("request id=7 \"a=b\" title=\"say \\\"hi\\\" # \\n\" force# # rest");
    EXPECT_EQ(line.words, (std::vector<std::string>{"request", "a=b", "force#"}));
    EXPECT_EQ(line.values, (std::map<std::string, std::string>{{"id", "7"}, {"title", "say \"hi\" # \n"}}));
    EXPECT_THROW(ParseScenarioLine("raw \"open"), std::runtime_error);
}

TEST(ScenarioLine, ReadsSpansAndRefusesWhatIsNone) {
    EXPECT_EQ(ParseSpan("-90s"), -std::chrono::seconds(90));
    EXPECT_EQ(ParseSpan("+2d"), std::chrono::hours(48));
    for (auto text : {"", "5", "m", "5x", "5 m"}) EXPECT_THROW(ParseSpan(text), std::runtime_error) << text;
}

TEST(ClientMessages, CarryWhatTheLineSays) {
    EXPECT_EQ(MessageFor(ParseScenarioLine("request id=7 title=\"a<b&c\" restart cancellable=no"), ""),
              "<ActionRequest><ID>7</ID><Title>a&lt;b&amp;c</Title><Cancellable>false</Cancellable>"
              "<Restart>true</Restart></ActionRequest>");
}

TEST(Answers, AreReadWithTheirFields) {
    char const* document =
        "<?xml version=\"1.0\" "
        "encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<Error>\n\t\t<Text><![CDATA[a<b&amp;]]></Text>\n\t\t"
        "<Code>&amp;lt;2&gt;</Code>\n\t</Error>\n</ClientToUI>";
    EXPECT_EQ(ReadAnswer(document).Text(), "Error Code=&lt;2> Text=a<b&amp;");
    EXPECT_THROW(ReadAnswer("<?xml?><a><b><c>"), std::runtime_error);
}

}  // namespace tools
