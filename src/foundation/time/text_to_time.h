#pragma once

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ustring_ref.h"
#include "foundation/time/time_object.h"

// The text is not a time.
class InvalidTimeText : public DebuggableException {};

// Reads the form that TimeToText writes:
//
//   time    = blank* weekday ", " dd " " month " " year " " dd ":" dd ":" dd " " zone blank*
//   weekday = "Sun" | "Mon" | "Tue" | "Wed" | "Thu" | "Fri" | "Sat"
//   month   = "Jan" | "Feb" | ... | "Dec"
//   year    = four digits, or more that do not begin with "0"; at most 4294967295
//   zone    = ("+" | "-") dd dd           hours and minutes, the minutes below 60
//   blank   = space, tab, carriage return or line feed
//
// dd is two digits, " " exactly one space, and letters are taken as they are spelt here. The weekday may be any: it is
// not checked against the date. Any other text, and a date or time of day that does not exist, throws InvalidTimeText.
TimeObject TextToTime(UStringRef<UTF8> text);
