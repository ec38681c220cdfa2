#include "localisation/localized_strings.h"

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

TEST(LocalizedStringsTest, ATranslationChangesItsOwnEntryOnly) {
    FormatOverrideSet set(
        "OK\tJa\nYou Have {number} New Offers\t{count}\nSun\tSo\n???\tkein Tag\n{date} {time}\t{time} am {date}\n"
        "Your administrator has disabled this feature between {start} and {end}.\tbis {end} ab {start}");
    FormatOverrideScope scope(set, GlobalFormatOverrideContext());
    ScopedLocalZone const zone("EAST-2");
    auto at = [](TimeOfDay time) { return Instant(TimeObject({5, Month::January, 2014}, time, TimeZone(7200))); };
    EXPECT_STREQ(LocalizedStrings::OK().c_str(), "Ja");
    EXPECT_STREQ(LocalizedStrings::Cancel().c_str(), "Cancel");
    EXPECT_STREQ(LocalizedStrings::QuietModeExplanation(at({1, 2, 3}), at({4, 5, 6})).c_str(),
                 "bis 04:05:06 ab 01:02:03");
    EXPECT_THROW(LocalizedStrings::AnnounceOffers(0), UndefinedFormatVariable);
    EXPECT_EQ(View(UnixPlatform::FormattedShortDayOfWeek(DayOfWeek::Sunday)), "So");
    EXPECT_EQ(View(UnixPlatform::FormattedLongDayOfWeek(DayOfWeek(7))), "kein Tag");
    EXPECT_EQ(View(UnixPlatform::FormattedLocalTime(at({7, 5, 9}))), "07:05:09 am Sun, 05 Jan 2014");
}

}  // namespace
