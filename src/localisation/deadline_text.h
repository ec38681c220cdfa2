#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"

// The time left until a deadline as a short phrase, translated: "3 hours", "Overdue".
//
// Days and hours are rounded, half of one down; minutes are cut off. Where `relative` is set, "from now" follows. The last
// five minutes and what is past have phrases of their own, the latter and "Now" without "from now":
//
//   exact                  minutes and seconds; past "0 seconds", or "Running..." where `relative` is set
//   not exact              "Now"; past "Overdue"
//
// Throws what the formatter throws. Main thread only.
AutoUString<UTF8> FormattedDeadline(Instant const& deadline, Instant const& now, bool exact, bool relative);
AutoUString<UTF8> FormattedDeadline(TimeInterval const& remaining, bool exact, bool relative);

// A count in plain digits.
AutoUString<UTF8> FormattedNumber(unsigned long long value);
