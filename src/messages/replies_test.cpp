#include "messages/replies.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

template <class Record>
std::string Written(Record const& record) {
    return std::string(ConvertToXML(record).AsStringView());
}

TEST(RepliesTest, EveryDocumentIsExact) {
    EXPECT_EQ(Written(ReadyForData{}),
              kDeclaration + std::string("<ClientToUI>\n\t<ReadyForData></ReadyForData>\n</ClientToUI>"));
    EXPECT_EQ(Written(ActionTaken{.is_cancel = true, .id = 42}),
              kDeclaration + std::string("<UIToClient>\n\t<ActionTaken>\n\t\t<IsCancel>true</IsCancel>\n\t\t<IsOffer>"
                                         "false</IsOffer>\n\t\t<ID>42</ID>\n\t</ActionTaken>\n</UIToClient>"));
    EXPECT_EQ(Written(RemindTime{TimeObject(Instant(1'794'968'160'000'000), TimeZone(-12'600))}),
              kDeclaration + std::string("<UIToClient>\n\t<RemindTime>\n\t\t<TimeObject>Tue, 17 Nov 2026 22:46:00 -0330"
                                         "</TimeObject>\n\t</RemindTime>\n</UIToClient>"));
    EXPECT_EQ(Written(RemindInterval{TimeInterval::Minutes(-15)}),
              kDeclaration + std::string("<UIToClient>\n\t<RemindInterval>\n\t\t<TimeInterval>-PT15M</TimeInterval>\n\t"
                                         "</RemindInterval>\n</UIToClient>"));
}

TEST(RepliesTest, DebugStringsFollowTheTextRule) {
    using Case = std::pair<char const*, std::string>;
    for (auto const& [text, written] :
         {Case{"MessageDialog", "MessageDialog"}, {"a<b", "<![CDATA[a<b]]>"}, {"a&b]]>", "a&amp;b]]&gt;"}, {"", ""}})
        EXPECT_EQ(Written(ClientUIErrorMessage(ClientUIErrorMessage::ErrorCode::DialogNotShown, text)),
                  kDeclaration + ("<ClientToUI>\n\t<ClientUIErrorMessage>\n\t\t<DebugString>" + written +
                                  "</DebugString>\n\t\t<ErrorCode>2</ErrorCode>\n\t</ClientUIErrorMessage>\n"
                                  "</ClientToUI>"));
}

}  // namespace
