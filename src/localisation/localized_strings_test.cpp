#include "localisation/localized_strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/time/time_object.h"
#include "localisation/format_string.h"
#include "localisation/locale_text.h"
#include "localisation/uformat.h"
#include "tests/support/scoped_local_zone.h"

namespace {

std::string_view View(AutoUString<UTF8> const& text) {
    return text.AsStringView();
}

Instant At(TimeOfDay time) {
    return Instant(TimeObject({5, Month::January, 2014}, time, TimeZone(7200)));
}

TEST(LocalizedStringsTest, CountsAndTimesChooseAndFillTheirTexts) {
    ScopedLocalZone const zone("EAST-2");
    EXPECT_STREQ(LocalizedStrings::TrayTip(0).c_str(), "Click to open Corvane Support Center");
    EXPECT_STREQ(LocalizedStrings::TrayTip(1).c_str(), "You have 1 pending action.");
    EXPECT_STREQ(LocalizedStrings::TrayTip(2).c_str(), "You have 2 pending actions.");
    EXPECT_EQ(View(LocalizedStrings::AnnounceOffers(0)), "You Have 0 New Offers");
    EXPECT_EQ(View(LocalizedStrings::AnnounceOffers(1)), "You Have 1 New Offer");
    EXPECT_STREQ(LocalizedStrings::EnteringQuietModeExplanation(At({0, 0, 0}), At({17, 5, 9})).c_str(),
                 "Your administrator has disabled the Corvane Support Center between 00:00:00 and 17:05:09.  The "
                 "application will now close.");
    EXPECT_THAT(LocalizedStrings::AboutVersion().c_str(),
                testing::MatchesRegex("Corvane Support Center version [0-9]+(\\.[0-9]+){3}"));
    EXPECT_STREQ(LocalizedStrings::MenuCut().c_str(), "Cu&t\tCtrl-X");
    EXPECT_EQ(View(UnixPlatform::FormattedDateRecord({5, Month::January, 987})), "Fri, 05 Jan 0987");
}

TEST(LocalizedStringsTest, ATranslationChangesItsOwnEntryOnly) {
    FormatOverrideSet set(
        "OK\tJa\nYou Have {number} New Offers\t{count}\nSun\tSo\n???\tkein Tag\n{date} {time}\t{time} am {date}\n"
        "Your administrator has disabled this feature between {start} and {end}.\tbis {end} ab {start}");
    FormatOverrideScope scope(set, GlobalFormatOverrideContext());
    ScopedLocalZone const zone("EAST-2");
    EXPECT_STREQ(LocalizedStrings::OK().c_str(), "Ja");
    EXPECT_STREQ(LocalizedStrings::Cancel().c_str(), "Cancel");
    EXPECT_STREQ(LocalizedStrings::QuietModeExplanation(At({1, 2, 3}), At({4, 5, 6})).c_str(),
                 "bis 04:05:06 ab 01:02:03");
    EXPECT_THROW(LocalizedStrings::AnnounceOffers(0), UndefinedFormatVariable);
    EXPECT_EQ(View(UnixPlatform::FormattedShortDayOfWeek(DayOfWeek::Sunday)), "So");
    EXPECT_EQ(View(UnixPlatform::FormattedLongDayOfWeek(DayOfWeek(7))), "kein Tag");
    EXPECT_EQ(View(UnixPlatform::FormattedLocalTime(At({7, 5, 9}))), "07:05:09 am Sun, 05 Jan 2014");
}

}  // namespace
