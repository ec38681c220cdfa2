#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"

// The duration in the lexical form of XML Schema's duration: the most days, hours and minutes that fit, then seconds.
//
// A part that is 0 is left out, the part of a second has always six digits: P1D, PT1M30S, -P1DT1H, PT1.500000S; no
// time at all is PT0S. Reading the text gives the interval back.
AutoUString<UTF8> TimeIntervalToXMLDuration(TimeInterval const& interval);

// Reads a duration of days, hours, minutes and seconds; XMLDurationParser says which text that is. What it does not
// accept throws DebuggableException with one of the parser's three messages.
TimeInterval XMLDurationToTimeInterval(UStringRef<UTF8> text);
