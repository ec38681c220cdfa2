#include "foundation/text/local_encoding.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace UnixPlatform;
using namespace std::string_view_literals;

struct LocalEncoding : testing::Test {
    ~LocalEncoding() override { std::setlocale(LC_CTYPE, "C"); }
};

UStringRef<UTF8> const mixed = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

TEST_F(LocalEncoding, UTF8LocalesCarryEveryCharacterUpToTheFirstZero) {
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8"));
    auto local = ToLocal8Bit(mixed);
    EXPECT_EQ(local.AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToUTF8(local).AsStringView(), mixed.AsStringView());
    for (auto text : {"ab\0cd"sv, "ab\xC0\x80"sv}) EXPECT_STREQ(MakeLocalString(UStringRef<UTF8>(text)).c_str(), "ab");
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("ab\0cd"sv)).AsStringView(), "ab");
    EXPECT_STREQ(OneLine("a\x1F b\x7F\xC2\x80").c_str(), "a  b \xC2\x80");
    EXPECT_THROW(ToUTF8(UStringRef<Local8Bit>("\xFF")), MultiByteToWideConvertError);
    EXPECT_THROW(MakeLocalString<UTF8>("\xE2\x82"), InvalidTextEncoding);
    EXPECT_THROW(MakeLocalString<UTF8>("\xED\xA0\x80"), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, OtherLocalesCarryWhatTheyHaveAndReplaceNothing) {
    EXPECT_STREQ(MakeLocalString<UTF8>("plain").c_str(), "plain");
    EXPECT_THROW(MakeLocalString<UTF8>("caf\xC3\xA9"), WideToMultiByteConvertError);
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "fr_CA.ISO-8859-1"));
    EXPECT_STREQ(MakeLocalString<UTF8>("caf\xC3\xA9").c_str(), "caf\xE9");
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("\xE9")).AsStringView(), "\xC3\xA9");
    EXPECT_THROW(ToLocal8Bit(mixed), WideToMultiByteConvertError);
}

}  // namespace
