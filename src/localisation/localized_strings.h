#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"
#include "localisation/localized_texts.h"

// The catalogue of the fixed texts of the user interface, each translated when it is asked for. Labels come in the
// locale's encoding, texts that are combined further in UTF-8.
//
// No state. All throw what the formatter throws: a faulty translation is not caught here. Main thread only.
class LocalizedStrings {
  public:
#define LOCALIZED_ACCESSOR(name, english) static AutoNullTerminated<char> name();
    LOCALIZED_LABELS(LOCALIZED_ACCESSOR)
#undef LOCALIZED_ACCESSOR
#define LOCALIZED_ACCESSOR(name, english) static AutoUString<UTF8> name();
    LOCALIZED_TEXTS(LOCALIZED_ACCESSOR)
#undef LOCALIZED_ACCESSOR

    static AutoNullTerminated<char> AboutCopyright();
    static AutoNullTerminated<char> AboutVersion();

    // Between which times of day, in the local zone, the user interface is closed. The dates are not shown.
    static AutoNullTerminated<char> EnteringQuietModeExplanation(Instant const& start, Instant const& end);
    static AutoNullTerminated<char> QuietModeExplanation(Instant const& start, Instant const& end);

    // How many actions are pending, with a text of its own for none and for one.
    static AutoNullTerminated<char> TrayTip(unsigned int count);
    // How many offers are new, with a text of its own for one only: meant, none are announced as 0.
    static AutoUString<UTF8> AnnounceOffers(unsigned int count);

    // Every English text above, for tools that list what a translator has to translate.
    static ConstArrayOf<char const*> Keys();
};
