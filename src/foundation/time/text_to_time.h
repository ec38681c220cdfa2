#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ustring_ref.h"
#include "foundation/time/time_object.h"

// Reads the pieces that the text forms of dates and times are made of, from the front of a borrowed text.
//
// Each operation takes its piece off the text and answers whether it stood there; after a failure the rest is of no
// use. So a whole form reads as one conjunction.
class TimeScanner {
  public:
    explicit TimeScanner(UStringRef<UTF8> text) : rest_(text.AsStringView()) {}

    bool AtEnd() const { return rest_.empty(); }
    // Drops spaces, tabs and line ends before and after what is left.
    void Trim();

    // Exactly this text. When it does not stand there, nothing is taken.
    bool Take(std::string_view literal);
    bool TakeTwoDigits(unsigned char& value);
    // All digits that follow, at least one.
    bool TakeDigits(std::string_view& digits);
    // Four digits, or more of which the first is not "0"; at most 4294967295.
    bool TakeYear(std::uint32_t& year);
    // hh:mm:ss, whatever the numbers.
    bool TakeTimeOfDay(TimeOfDay& time);
    // A sign, hours, the separator and minutes below 60: +01:00, or -0330 when the separator is empty.
    bool TakeOffset(std::string_view separator, TimeZone& zone);

  private:
    std::string_view rest_;
};

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
