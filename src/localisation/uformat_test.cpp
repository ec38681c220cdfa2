#include "localisation/uformat.h"

#include <gtest/gtest.h>

#include <vector>

#include "localisation/format_string.h"

namespace {

using Arguments = std::vector<char const*>;

// The text, rendered for the key and up to two arguments.
Stringy Render(char const* key, char const* text, Arguments const& arguments) {
    FormatPlusArguments<0> const format(key, text);
    auto const rendered = arguments.empty()       ? MakeUString(format)
                          : arguments.size() == 1 ? MakeUString(format.With(arguments[0]))
                                                  : MakeUString(format.With(arguments[0], arguments[1]));
    return Stringy(rendered.AsStringView());
}

TEST(UFormatTest, VariablesAreReplacedByName) {
    EXPECT_EQ(Render("k", "{_obrace}x{_cbrace}}", {}), "{x}}");
    EXPECT_EQ(Render("k", "1{_cr}2{_lf}3{_crlf}4{_tab}5", {}), "1\r2\n3\r\n4\t5");
    EXPECT_EQ(Render("{start} and {end}", "{end} / {start}", {"9:00", "17:00"}), "17:00 / 9:00");
    EXPECT_EQ(Render("{a}{b}", "{b}{b}", {"1", "2"}), "22");
    EXPECT_EQ(Render("{x}{x}", "{x}{x}", {"y", "x"}), "xx");
    EXPECT_EQ(Render("{a}{_tab}{b}", "{b}{a}", {"", "{a}"}), "{a}");
    EXPECT_EQ(Render("{-ab}{a_}", "{a_}{-ab}", {"1", "2"}), "21");
    EXPECT_EQ(Render("k", "\xff{_lf}\xc0", {}), "\xff\n\xc0");
}

TEST(UFormatTest, EachFaultFailsInItsOwnWay) {
    EXPECT_THROW(Render("k", "a{b", {}), BadFormatStringError);
    EXPECT_THROW(Render("a{", "k", {}), BadFormatStringError);
    EXPECT_THROW(Render("k", "{}", {}), ImproperFormatVariableName);
    for (auto key : {"{}", "{a-b}", "{a{b}", "{a\xc3\xa4}"})
        EXPECT_THROW(Render(key, "k", {"1"}), ImproperFormatVariableName) << key;
    for (auto key : {"{_nope}", "{_}"}) EXPECT_THROW(Render(key, "k", {}), UndefinedFormatVariable) << key;
    for (auto text : {"{_crl}", "{b}", "{ }", "{a-}"})
        EXPECT_THROW(Render("{a}", text, {"1"}), UndefinedFormatVariable) << text;
    EXPECT_THROW(Render("{a}", "{a}", {}), TooManyFormatArguments);
    EXPECT_THROW(Render("{a}{a}", "{a}", {"1"}), TooManyFormatArguments);
    EXPECT_THROW(Render("k{_tab}", "k", {"1"}), TooFewFormatArguments);
}

TEST(ControlLiteralTest, WidgetsGetOwnedTranslatedText) {
    FormatOverrideSet set("Close\tZu{_tab}\nplain\t{open");
    FormatOverrideScope scope(set, GlobalFormatOverrideContext());
    EXPECT_STREQ(ControlLiteral("Close").c_str(), "Zu\t");
    EXPECT_THROW(ControlLiteral("plain"), BadFormatStringError);
    EXPECT_THROW(ControlLiteral("\xc3\xa9"), UnixPlatform::WideToMultiByteConvertError);
}

}  // namespace
