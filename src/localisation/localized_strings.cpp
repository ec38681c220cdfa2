#include "localisation/localized_strings.h"

#include "foundation/time/time_object.h"
#include "localisation/locale_text.h"
#include "localisation/uformat.h"

char const* const product_version = PRODUCT_VERSION;

namespace {

namespace Sentence {
#define SENTENCE(name, english) constexpr char const* name = english;
LOCALIZED_SENTENCES(SENTENCE)
#undef SENTENCE
}  // namespace Sentence

AutoUString<UTF8> LocalTimeOfDay(Instant const& instant) {
    return UnixPlatform::FormattedTimeOfDay(TimeObject(instant, TimeZone::Local()).Time());
}

AutoNullTerminated<char> BetweenTimes(char const* english, Instant const& start, Instant const& end) {
    auto startText = LocalTimeOfDay(start);
    auto endText = LocalTimeOfDay(end);
    return MakePlatformString(FormatPlusArguments(FormatPlusArguments(UFormat(english), startText), endText));
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

AutoNullTerminated<char> LocalizedStrings::AboutCopyright() {
    return MakePlatformString(FormatPlusArguments(UFormat(Sentence::Copyright), legal_notice_year));
}

AutoNullTerminated<char> LocalizedStrings::AboutVersion() {
    return MakePlatformString(FormatPlusArguments(UFormat(Sentence::Version), product_version));
}

AutoNullTerminated<char> LocalizedStrings::EnteringQuietModeExplanation(Instant const& start, Instant const& end) {
    return BetweenTimes(Sentence::EnteringQuietMode, start, end);
}

AutoNullTerminated<char> LocalizedStrings::QuietModeExplanation(Instant const& start, Instant const& end) {
    return BetweenTimes(Sentence::InQuietMode, start, end);
}

AutoNullTerminated<char> LocalizedStrings::TrayTip(unsigned int count) {
    if (count == 0) return MakePlatformString(UFormat(Sentence::NothingPending));
    if (count == 1) return MakePlatformString(UFormat(Sentence::OnePending));
    auto number = UnixPlatform::FormattedNumber(count);
    return MakePlatformString(FormatPlusArguments(UFormat(Sentence::ManyPending), number));
}

AutoUString<UTF8> LocalizedStrings::AnnounceOffers(unsigned int count) {
    if (count == 1) return MakeUString(UFormat(Sentence::OneNewOffer));
    auto number = UnixPlatform::FormattedNumber(count);
    return MakeUString(FormatPlusArguments(UFormat(Sentence::ManyNewOffers), number));
}

ConstArrayOf<char const*> LocalizedStrings::Keys() {
#define KEY(name, english) english,
    static constexpr char const* keys[] = {LOCALIZED_LABELS(KEY) LOCALIZED_TEXTS(KEY) LOCALIZED_SENTENCES(KEY)};
#undef KEY
    return keys;
}
