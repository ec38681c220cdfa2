#include "localisation/localized_strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "foundation/time/scoped_local_zone.h"
#include "foundation/time/time_object.h"
#include "localisation/format_errors.h"
#include "localisation/locale_text.h"
#include "localisation/uformat.h"

namespace {

// Local time is two hours east of Greenwich; Translate puts translations into force for the rest of the test.
struct LocalizedStringsTest : testing::Test {
    void Translate(char const* file) { scope_.emplace(set_.emplace(file), GlobalFormatOverrideContext()); }
    static Instant At(TimeOfDay time) { return Instant(TimeObject({5, Month::January, 2014}, time, TimeZone(7200))); }
    static std::string_view View(AutoUString<UTF8> const& text) { return text.AsStringView(); }

    ScopedLocalZone const zone_{"EAST-2"};
    std::optional<FormatOverrideSet> set_;
    std::optional<FormatOverrideScope> scope_;
};

TEST_F(LocalizedStringsTest, WithoutTranslationTheTextsAreEnglish) {
    EXPECT_STREQ(LocalizedStrings::MenuCut().c_str(), "Cu&t\tCtrl-X");
    EXPECT_THAT(LocalizedStrings::AboutVersion().c_str(),
                testing::MatchesRegex("Corvane Support Center version [0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+"));
    EXPECT_EQ(View(LocalizedStrings::RestartNow()), "Restart Now");
    EXPECT_STREQ(LocalizedStrings::TrayTip(0).c_str(), "Click to open Corvane Support Center");
    EXPECT_STREQ(LocalizedStrings::TrayTip(1).c_str(), "You have 1 pending action.");
    EXPECT_STREQ(LocalizedStrings::TrayTip(4294967295u).c_str(), "You have 4294967295 pending actions.");
    EXPECT_EQ(View(LocalizedStrings::AnnounceOffers(0)), "You Have 0 New Offers");
    EXPECT_EQ(View(LocalizedStrings::AnnounceOffers(1)), "You Have 1 New Offer");
    EXPECT_THAT(LocalizedStrings::AboutCopyright().c_str(), testing::MatchesRegex("[^{}\n]*20[0-9][0-9][^{}\n]*"));
}

TEST_F(LocalizedStringsTest, ATranslationChangesItsOwnEntryOnly) {
    Translate(
        "OK\tJa\n"
        "You Have {number} New Offers\t{count}\n"
        "Sun\tSo\nSunday\tSonntag\n???\tkein Tag\nJan\tJaen\n{date} {time}\t{time} am {date}\n"
        "Your administrator has disabled this feature between {start} and {end}.\tbis {end} ab {start}");
    EXPECT_STREQ(LocalizedStrings::OK().c_str(), "Ja");
    EXPECT_STREQ(LocalizedStrings::Cancel().c_str(), "Cancel");
    EXPECT_STREQ(LocalizedStrings::QuietModeExplanation(At({1, 2, 3}), At({4, 5, 6})).c_str(),
                 "bis 04:05:06 ab 01:02:03");
    EXPECT_THROW(LocalizedStrings::AnnounceOffers(2), UndefinedFormatVariable);
    EXPECT_EQ(View(UnixPlatform::FormattedShortDayOfWeek(DayOfWeek::Sunday)), "So");
    EXPECT_EQ(View(UnixPlatform::FormattedLongDayOfWeek(DayOfWeek::Sunday)), "Sonntag");
    EXPECT_EQ(View(UnixPlatform::FormattedShortDayOfWeek(DayOfWeek(7))), "kein Tag");
    EXPECT_EQ(View(UnixPlatform::FormattedLocalTime(At({7, 5, 9}))), "07:05:09 am Sun, 05 Jan 2014");
}

TEST_F(LocalizedStringsTest, KeysListsEveryTextOnce) {
    auto keys = LocalizedStrings::Keys();
    std::set<Stringy> distinct(keys.begin(), keys.end());
    EXPECT_EQ(distinct.size(), keys.size());
    for (auto key : {"&Help", "Offers", "You Have {number} New Offers"}) EXPECT_TRUE(distinct.contains(key)) << key;
}

TEST_F(LocalizedStringsTest, TimesDatesAndNumbersHaveOneForm) {
    namespace Platform = UnixPlatform;
    EXPECT_EQ(View(Platform::FormattedDateRecord({255, Month(77), 4294967295u})).substr(4), " 255 ??? 4294967295");
    EXPECT_EQ(View(Platform::FormattedLocalTime(At({23, 59, 59}))), "Sun, 05 Jan 2014 23:59:59");
    EXPECT_EQ(View(Platform::FormattedNumber(~0ull)), "18446744073709551615");
    EXPECT_EQ(View(Platform::FormattedLongDayOfWeek(DayOfWeek::Wednesday)), "Wednesday");
    EXPECT_EQ(View(Platform::FormattedShortDayOfWeek(DayOfWeek::Saturday)), "Sat");
    for (int day : {7, 255}) EXPECT_EQ(View(Platform::FormattedLongDayOfWeek(DayOfWeek(day))), "???");
}

}  // namespace
