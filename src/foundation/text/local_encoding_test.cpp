#include "foundation/text/local_encoding.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace UnixPlatform;

class LocalEncoding : public testing::Test {
  protected:
    ~LocalEncoding() override { std::setlocale(LC_CTYPE, "C"); }

    static bool Use(char const* locale) { return std::setlocale(LC_CTYPE, locale) != nullptr; }
};

UStringRef<UTF8> const mixed = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

TEST_F(LocalEncoding, UTF8LocalesCarryEveryCharacterBothWays) {
    ASSERT_TRUE(Use("C.UTF-8"));
    EXPECT_EQ(IANAEncodingName(Local8Bit()).AsStringView(), "UTF-8");
    auto local = ToLocal8Bit(mixed);
    EXPECT_EQ(local.AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToUTF8(local).AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToLocal8Bit(ToUTF16(local).Ref()).AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToLocal8Bit(ToUTF32(local).Ref()).AsStringView(), mixed.AsStringView());
    EXPECT_EQ(ToUTF16(local).size(), 5u);
    EXPECT_STREQ(MakeLocalString<UTF8>(mixed).c_str(), "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_STREQ(MakeLocalString<UTF8>(SharedUString<UTF8>(mixed)).c_str(), mixed.AsStringView().data());
    EXPECT_STREQ(MakeLocalString<UTF8>(MakeUString<UTF8>("")).c_str(), "");
    EXPECT_THROW(ToUTF8(UStringRef<Local8Bit>("\xFF")), MultiByteToWideConvertError);
    EXPECT_THROW(MakeLocalString<UTF8>("\xE2\x82"), InvalidTextEncoding);
    EXPECT_THROW(MakeLocalString<UTF8>("\xED\xA0\x80"), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, NothingIsReplacedInALocaleThatLacksACharacter) {
    EXPECT_EQ(IANAEncodingName(Local8Bit()).AsStringView(), "ANSI_X3.4-1968");
    EXPECT_STREQ(MakeLocalString<UTF8>("plain").c_str(), "plain");
    EXPECT_THROW(MakeLocalString<UTF8>("caf\xC3\xA9"), WideToMultiByteConvertError);
    EXPECT_THROW(ToLocal8Bit(mixed), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, OneByteLocalesConvertWhatTheyHave) {
    ASSERT_TRUE(Use("fr_CA.ISO-8859-1"));
    EXPECT_STREQ(MakeLocalString<UTF8>("caf\xC3\xA9").c_str(), "caf\xE9");
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("\xE9")).AsStringView(), "\xC3\xA9");
    EXPECT_THROW(ToLocal8Bit(mixed), WideToMultiByteConvertError);
}

TEST_F(LocalEncoding, TextEndsAtItsFirstZeroCharacter) {
    ASSERT_TRUE(Use("C.UTF-8"));
    using namespace std::string_view_literals;
    UStringRef<UTF8> cut("ab\0cd"sv), overlong("ab\xC0\x80\xFF\xFF"sv);
    EXPECT_EQ(ToLocal8Bit(cut).AsStringView(), "ab");
    EXPECT_THROW(ToLocal8Bit(overlong), InvalidTextEncoding);
    EXPECT_EQ(ToLocal8Bit(UStringRef<UTF8>(overlong.begin(), overlong.end() - 2)).AsStringView(), "ab");
    EXPECT_EQ(ToUTF8(UStringRef<Local8Bit>("ab\0cd"sv)).AsStringView(), "ab");
    EXPECT_TRUE(ToLocal8Bit(UStringRef<UTF8>("\0"sv)).empty());
}

}  // namespace
