#include "messages/replies.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The other documents stand to the byte in the example conversation.
TEST(ClientUIErrorMessageTest, DebugStringsFollowTheTextRule) {
    using Case = std::pair<char const*, std::string>;
    for (auto const& [text, written] :
         {Case{"MessageDialog", "MessageDialog"}, {"a<b", "<![CDATA[a<b]]>"}, {"a&b]]>", "a&amp;b]]&gt;"}, {"", ""}}) {
        ClientUIErrorMessage const message(ClientUIErrorMessage::ErrorCode::DialogNotShown, text);
        EXPECT_EQ(
            ConvertToXML(message).AsStringView(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n\t\t<DebugString>" +
                written + "</DebugString>\n\t\t<ErrorCode>2</ErrorCode>\n\t</ClientUIErrorMessage>\n</ClientToUI>");
    }
}

}  // namespace
