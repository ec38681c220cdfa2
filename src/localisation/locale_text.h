#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/time_object.h"

// Times, dates and numbers as the user reads them. The system's locale plays no part: dates and times have one form,
// numbers are plain digits. Only the names of days that stand alone and the pattern that joins a date and a time can be
// translated; what returns these throws what the formatter throws for a faulty translation. Main thread only.
namespace UnixPlatform {

// On a 24-hour clock: 07:05:09.
AutoUString<UTF8> FormattedTimeOfDay(TimeOfDay const& time);

// For example: Sun, 05 Jan 2014. Meant: the names stay English in every translation.
AutoUString<UTF8> FormattedDateRecord(DateRecord const& date);

// Date and time of the instant on a clock in the local zone.
AutoUString<UTF8> FormattedLocalTime(Instant const& instant);

// Names of days, translated. A value that is no day gives "???".
AutoUString<UTF8> FormattedLongDayOfWeek(DayOfWeek const& day);
AutoUString<UTF8> FormattedShortDayOfWeek(DayOfWeek const& day);

// Plain decimal digits, at least one.
AutoUString<UTF8> FormattedNumber(unsigned long long value);
// The numeral as it stands; the second argument is ignored.
AutoUString<UTF8> FormattedNumber(UStringRef<USAscii> numeral, unsigned int);

}  // namespace UnixPlatform
