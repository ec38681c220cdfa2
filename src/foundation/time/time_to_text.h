#pragma once

#include "foundation/time/buffer.h"
#include "foundation/time/time_object.h"

// The text form in which times travel between the client and this process:
//
//   Sun, 15 Nov 2026 02:16:00 +0000
//
// It is that of Internet mail (RFC 5322), English in every locale. TextToTime reads it back for every Valid() time
// whose zone is less than 100 hours from UTC; other values are written too, field by field as they stand.

// "Sun" to "Sat" and "Jan" to "Dec"; "???" for a value that is none.
char const* DayOfWeekToText(DayOfWeek day);
char const* MonthToText(Month month);

// 02:16:00.
Buffer& operator<<(Buffer& buffer, TimeOfDay const& time);
// Sun, 15 Nov 2026: the day of the week is computed, the year has at least four digits.
Buffer& operator<<(Buffer& buffer, DateRecord const& date);
// +0000.
Buffer& operator<<(Buffer& buffer, TimeZone const& zone);
Buffer& operator<<(Buffer& buffer, TimeObject const& time);

// A sign, hours, the separator and minutes, both numbers at least two digits; odd seconds are cut off. The sign is that
// of the whole offset, so a zone less than a minute to the west is -0000.
Buffer& WriteOffset(Buffer& buffer, TimeZone zone, char const* separator);

AutoUString<UTF8> TimeToText(TimeObject const& time);
