#pragma once

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/time/time_object.h"

// Dates and times in the lexical forms of XML Schema. Blanks are accepted nowhere.

// The text is not a date, or not a date and time, or names one that does not exist.
class InvalidDateTimeString : public DebuggableException {};
// It is one, but its year is negative: the calendar of this program begins with the year 0.
class InvalidDateTimeNegativeYear : public DebuggableException {};

// 2026-11-15, the year with at least four digits.
AutoUString<UTF8> DateRecordToXMLDate(DateRecord const& date);
// 02:16:00.
AutoUString<UTF8> TimeOfDayToXMLTime(TimeOfDay const& time);
// Z for UTC, otherwise +01:00 or -03:30. Odd seconds are cut off.
AutoUString<UTF8> TimeZoneToText(TimeZone const& zone);
// 2026-11-15T02:16:00+01:00: the instant to the second, on a clock of the local zone. XML Schema has zones of whole
// minutes up to 14 hours from UTC; a local zone that is none of these is replaced by the nearest toward UTC, so that
// the text names the same instant. One before the year 0 is written as the beginning of that year.
AutoUString<UTF8> InstantToXMLDateTime(Instant const& instant);

// Reads what DateRecordToXMLDate writes: a year of four digits, or of more that do not begin with "0", at most
// 4294967295. A zone is not accepted.
DateRecord XMLDateToDateRecord(UStringRef<UTF8> text);

// Reads a date, "T", hh:mm:ss, then perhaps "." and a fraction of a second, then perhaps a zone: "Z", or a sign and
// hh:mm up to 14:00. A fraction may be of any length; what is finer than a microsecond is cut off. Without a zone it is
// a time of the local zone, by the offset in force now. 24:00:00 is the beginning of the next day. An instant outside
// the range gives the nearest there is.
Instant XMLDateTimeToInstant(UStringRef<UTF8> text);
