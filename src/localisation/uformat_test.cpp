#include "localisation/uformat.h"

#include <gtest/gtest.h>

#include <random>
#include <typeindex>
#include <vector>

#include "localisation/control_literal.h"
#include "localisation/format_errors.h"

namespace {

using Arguments = std::vector<char const*>;

// The text, rendered for the key and up to two arguments.
Stringy Render(char const* key, char const* text, Arguments const& arguments) {
    FormatPlusArguments<0> none(key, text);
    if (arguments.empty()) return Stringy(MakeUString(none).AsStringView());
    FormatPlusArguments one(none, arguments[0]);
    if (arguments.size() == 1) return Stringy(MakeUString(one).AsStringView());
    return Stringy(MakeUString(FormatPlusArguments(one, arguments[1])).AsStringView());
}

TEST(UFormatTest, VariablesAreReplacedByName) {
    struct {
        char const *key, *text;
        Arguments arguments;
        char const* rendered;
    } const cases[] = {
        {"", "", {}, ""},
        {"k", "{_obrace}x{_cbrace}", {}, "{x}"},
        {"k", "a}b}", {}, "a}b}"},
        {"k", "1{_cr}2{_lf}3{_crlf}4{_tab}5", {}, "1\r2\n3\r\n4\t5"},
        {"{start} and {end}", "{end} / {start}", {"9:00", "17:00"}, "17:00 / 9:00"},
        {"{a}{b}", "{b}{b}", {"1", "2"}, "22"},
        {"{a}", "", {"1"}, ""},
        {"{a}", "{a}", {"{b}{_tab}"}, "{b}{_tab}"},
        {"{a}{_tab}{b}", "{a}{b}", {"", "2"}, "2"},
        {"{x}{x}", "{x}{x}", {"y", "x"}, "xx"},
        {"{ab}{a}", "{a}{ab}", {"1", "2"}, "21"},
        {"{-ab}{a_}", "{a_}{-ab}", {"1", "2"}, "21"},
        {"k", "\xff{_lf}\xc0", {}, "\xff\n\xc0"},
    };
    for (auto const& row : cases) EXPECT_EQ(Render(row.key, row.text, row.arguments), row.rendered) << row.text;
}

std::type_index FailureOf(char const* key, char const* text, Arguments const& arguments) try {
    Render(key, text, arguments);
    return typeid(void);
} catch (DebuggableException const& error) {
    return typeid(error);
}

TEST(UFormatTest, EachFaultFailsInItsOwnWay) {
    struct {
        char const *key, *text;
        Arguments arguments;
        std::type_index failure;
    } const cases[] = {
        {"k", "a{b", {}, typeid(BadFormatStringError)},
        {"a{", "k", {}, typeid(BadFormatStringError)},
        {"{}", "k", {"1"}, typeid(ImproperFormatVariableName)},
        {"{a-b}", "k", {"1"}, typeid(ImproperFormatVariableName)},
        {"{a{b}", "k", {"1"}, typeid(ImproperFormatVariableName)},
        {"{a\xc3\xa4}", "k", {"1"}, typeid(ImproperFormatVariableName)},
        {"k", "{}", {}, typeid(ImproperFormatVariableName)},
        {"{_nope}", "k", {}, typeid(UndefinedFormatVariable)},
        {"{_}", "k", {}, typeid(UndefinedFormatVariable)},
        {"k", "{_crl}", {}, typeid(UndefinedFormatVariable)},
        {"{a}", "{b}", {"1"}, typeid(UndefinedFormatVariable)},
        {"{b}", "{a}", {"1"}, typeid(UndefinedFormatVariable)},
        {"{a}", "{a-}", {"1"}, typeid(UndefinedFormatVariable)},
        {"{a}", "{a}", {}, typeid(TooManyFormatArguments)},
        {"{a}{a}", "{a}", {"1"}, typeid(TooManyFormatArguments)},
        {"k{_tab}", "k", {"1"}, typeid(TooFewFormatArguments)},
    };
    for (auto const& row : cases) EXPECT_EQ(FailureOf(row.key, row.text, row.arguments), row.failure) << row.text;
}

TEST(UFormatTest, SegmentsAddUpToTheFormatString) {
    std::minstd_rand random(1);
    for (int round = 0; round < 20000; ++round) {
        Stringy format, joined;
        for (auto left = random() % 12; left > 0; --left) format += "{}a_"[random() % 4];
        bool open = format.find('{') != format.npos &&
                    (format.rfind('}') == format.npos || format.rfind('{') > format.rfind('}'));
        UStringRef<UTF8> view{std::string_view(format)};
        try {
            for (UFormatIterator segment(view); segment != UFormatIterator::End(view); ++segment) {
                auto text = Stringy(segment->text.AsStringView());
                joined += segment->variable ? "{" + text + "}" : text;
            }
            EXPECT_EQ(joined, format);
            EXPECT_FALSE(open) << format;
        } catch (BadFormatStringError const&) {
            EXPECT_TRUE(open) << format;
        }
    }
}

TEST(ControlLiteralTest, WidgetsGetOwnedTranslatedText) {
    FormatOverrideSet set("Close\tZu{_tab}\nplain\t{open");
    FormatOverrideScope scope(set, GlobalFormatOverrideContext());
    EXPECT_STREQ(ControlLiteral("Close").c_str(), "Zu\t");
    EXPECT_STREQ(ControlLiteral(ControlLiteral("Close")).c_str(), "Zu\t");
    EXPECT_STREQ(ControlLiteral(static_cast<char const*>(nullptr)).c_str(), "");
    EXPECT_STREQ(FunkyControlLiteral("Close {").c_str(), "Close {");
    EXPECT_STREQ(FunkyControlLiteral(nullptr).c_str(), "");
    EXPECT_THROW(ControlLiteral("plain"), BadFormatStringError);
    EXPECT_THROW(ControlLiteral("\xc3\xa9"), UnixPlatform::WideToMultiByteConvertError);
}

}  // namespace
