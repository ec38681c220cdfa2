#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"

// The time left until a deadline as a short phrase, translated: "3 hours", "Overdue".
//
// Days and hours are rounded, half of one down; minutes are cut off. The last five minutes are "Now", or, where `exact` is
// set, minutes and seconds. A deadline that is past is "Overdue", or, where `exact` is set, "0 seconds". Where `relative`
// is set the phrase says "from now", and an exact past deadline is "Running...". Throws what the formatter throws.
AutoUString<UTF8> FormattedDeadline(Instant const& deadline, Instant const& now, bool exact, bool relative);
AutoUString<UTF8> FormattedDeadline(TimeInterval const& remaining, bool exact, bool relative);

// A count in plain digits.
AutoUString<UTF8> FormattedNumber(unsigned long long value);
