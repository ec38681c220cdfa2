#include "foundation/text/local_encoding.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace UnixPlatform;

struct LocalEncoding : testing::Test {
    ~LocalEncoding() override { std::setlocale(LC_CTYPE, "C"); }
};

UStringRef<UTF8> const mixed = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

TEST_F(LocalEncoding, UTF8LocalesCarryEveryCharacterBothWays) {
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8"));
    auto local = ToLocal8Bit(mixed);
    EXPECT_EQ(local.AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToUTF8(local).AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToLocal8Bit(ToUTF16(local).Ref()).AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToLocal8Bit(ToUTF32(local).Ref()).AsStringView(), mixed.AsStringView());
    EXPECT_STREQ(MakeLocalString<UTF8>(SharedUString<UTF8>(mixed)).c_str(), mixed.AsStringView().data());
    EXPECT_STREQ(MakeLocalString<UTF8>(MakeUString<UTF8>("")).c_str(), "");
    EXPECT_THROW(ToUTF8(UStringRef<Local8Bit>("\xFF")), MultiByteToWideConvertError);
    EXPECT_THROW(MakeLocalString<UTF8>("\xE2\x82"), InvalidTextEncoding);
    EXPECT_THROW(MakeLocalString<UTF8>("\xED\xA0\x80"), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, OtherLocalesCarryWhatTheyHaveAndReplaceNothing) {
    EXPECT_EQ(IANAEncodingName(Local8Bit()).AsStringView(), "ANSI_X3.4-1968");
    EXPECT_STREQ(MakeLocalString<UTF8>("plain").c_str(), "plain");
    EXPECT_THROW(MakeLocalString<UTF8>("caf\xC3\xA9"), WideToMultiByteConvertError);
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "fr_CA.ISO-8859-1"));
    EXPECT_STREQ(MakeLocalString<UTF8>("caf\xC3\xA9").c_str(), "caf\xE9");
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("\xE9")).AsStringView(), "\xC3\xA9");
    EXPECT_THROW(ToLocal8Bit(mixed), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, TextEndsAtItsFirstZeroCharacter) {
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8"));
    using namespace std::string_view_literals;
    for (auto text : {"ab\0cd"sv, "ab\xC0\x80"sv}) EXPECT_EQ(ToLocal8Bit(UStringRef<UTF8>(text)).AsStringView(), "ab");
    EXPECT_THROW(ToLocal8Bit(UStringRef<UTF8>("ab\0\xFF\xFF"sv)), InvalidTextEncoding);
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("ab\0cd"sv)).AsStringView(), "ab");
    EXPECT_TRUE(ToLocal8Bit(UStringRef<UTF8>("\0"sv)).empty());
}

}  // namespace
