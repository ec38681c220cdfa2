#include "localisation/localized_strings.h"

#include "foundation/time/time_object.h"
#include "localisation/locale_text.h"
#include "localisation/uformat.h"

namespace {

AutoUString<UTF8> LocalTimeOfDay(Instant const& instant) {
    return UnixPlatform::FormattedTimeOfDay(TimeObject(instant, TimeZone::Local()).Time());
}

// `english` has two variables: the times of day at which something begins and ends.
AutoNullTerminated<char> Between(char const* english, Instant const& start, Instant const& end) {
    return MakePlatformString(UFormat(english).With(LocalTimeOfDay(start), LocalTimeOfDay(end)));
}

}  // namespace

#define LABEL(name, english)                            \
    AutoNullTerminated<char> LocalizedStrings::name() { \
        return MakePlatformString(UFormat(english));    \
    }
LOCALIZED_LABELS(LABEL)
#undef LABEL
#define TEXT(name, english)                      \
    AutoUString<UTF8> LocalizedStrings::name() { \
        return MakeUString(UFormat(english));    \
    }
LOCALIZED_TEXTS(TEXT)
#undef TEXT

AutoNullTerminated<char> LocalizedStrings::AboutVersion() {
    return MakePlatformString(UFormat("Corvane Support Center version {version}").With(PRODUCT_VERSION));
}

AutoNullTerminated<char> LocalizedStrings::EnteringQuietModeExplanation(Instant const& start, Instant const& end) {
    return Between(
        "Your administrator has disabled the Corvane Support Center between {start} and {end}.  The application will "
        "now close.",
        start, end);
}

AutoNullTerminated<char> LocalizedStrings::QuietModeExplanation(Instant const& start, Instant const& end) {
    return Between("Your administrator has disabled this feature between {start} and {end}.", start, end);
}

AutoNullTerminated<char> LocalizedStrings::TrayTip(unsigned int count) {
    if (count == 0) return MakePlatformString(UFormat("Click to open Corvane Support Center"));
    if (count == 1) return MakePlatformString(UFormat("You have 1 pending action."));
    return MakePlatformString(UFormat("You have {number} pending actions.").With(UnixPlatform::FormattedNumber(count)));
}

AutoUString<UTF8> LocalizedStrings::AnnounceOffers(unsigned int count) {
    if (count == 1) return MakeUString(UFormat("You Have 1 New Offer"));
    return MakeUString(UFormat("You Have {number} New Offers").With(UnixPlatform::FormattedNumber(count)));
}

AutoNullTerminated<char> LocalizedStrings::AboutCopyright() {
    return MakePlatformString(UFormat("Copyright {year} Corvane. All rights reserved.").With("2026"));
}
