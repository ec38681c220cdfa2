#include "foundation/text/base64.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(Base64, OnlyTheAlphabetCountsAndLeftoverBitsAreDropped) {
    for (auto text : {"TWFu", "T\r\nW\tF u", "=T=W=F=u=", "-TW_Fu", "\xFF\x80TWFu", "TWFuT", "TWFu===="})
        EXPECT_EQ(DecodeBase64(text), "Man") << text;
    for (auto text : {"TQ==", "TQ", "TR"}) EXPECT_EQ(DecodeBase64(text), "M") << text;
    EXPECT_EQ(DecodeBase64("TQ==TQ=="), "M\x04\xD0");
    EXPECT_EQ(DecodeBase64("+/+/"), "\xFB\xFF\xBF");
}

TEST(Base64, IsPaddedToWholeGroups) {
    for (auto [bytes, text] : {std::pair("", ""), {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"}, {"\xFF\xEF", "/+8="}})
        EXPECT_EQ(EncodeBase64(bytes), text);
}

}  // namespace
