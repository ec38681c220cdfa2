#include "localisation/localized_strings.h"

#include <gtest/gtest.h>

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
    EXPECT_STREQ(LocalizedStrings::TrayTip(1).c_str(), "You have 1 pending action.");
    EXPECT_STREQ(LocalizedStrings::TrayTip(4294967295u).c_str(), "You have 4294967295 pending actions.");
    EXPECT_EQ(View(LocalizedStrings::AnnounceOffers(1)), "You Have 1 New Offer");
    EXPECT_EQ(View(UnixPlatform::FormattedLocalTime(At({23, 59, 59}))), "Sun, 05 Jan 2014 23:59:59");
}

TEST_F(LocalizedStringsTest, ATranslationChangesItsOwnEntryOnly) {
    Translate(
        "OK\tJa\nYou Have {number} New Offers\t{count}\nSun\tSo\n???\tkein Tag\n{date} {time}\t{time} am {date}\n"
        "Your administrator has disabled this feature between {start} and {end}.\tbis {end} ab {start}");
    EXPECT_STREQ(LocalizedStrings::OK().c_str(), "Ja");
    EXPECT_STREQ(LocalizedStrings::Cancel().c_str(), "Cancel");
    EXPECT_STREQ(LocalizedStrings::QuietModeExplanation(At({1, 2, 3}), At({4, 5, 6})).c_str(),
                 "bis 04:05:06 ab 01:02:03");
    EXPECT_THROW(LocalizedStrings::AnnounceOffers(2), UndefinedFormatVariable);
    EXPECT_EQ(View(UnixPlatform::FormattedShortDayOfWeek(DayOfWeek::Sunday)), "So");
    EXPECT_EQ(View(UnixPlatform::FormattedLongDayOfWeek(DayOfWeek(7))), "kein Tag");
    EXPECT_EQ(View(UnixPlatform::FormattedLocalTime(At({7, 5, 9}))), "07:05:09 am Sun, 05 Jan 2014");
}

}  // namespace
