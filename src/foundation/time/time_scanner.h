#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/text/ustring_ref.h"
#include "foundation/time/time_of_day.h"
#include "foundation/time/time_zone.h"

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
