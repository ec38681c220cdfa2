#include "messages/replies.h"

#include <gtest/gtest.h>

namespace {

// The other documents stand to the byte in the example conversation.
TEST(ClientUIErrorMessageTest, IsExact) {
    ClientUIErrorMessage const message(ClientUIErrorMessage::ErrorCode::DialogNotShown, "a&b]]>");
    EXPECT_EQ(ConvertToXML(message).AsStringView(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n\t\t<DebugString>"
              "a&amp;b]]&gt;</DebugString>\n\t\t<ErrorCode>2</ErrorCode>\n\t</ClientUIErrorMessage>\n</ClientToUI>");
}

}  // namespace
