#pragma once

#include <cstdint>
#include <string_view>

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

// Reads a duration byte by byte. It accepts this part of XML Schema's duration, without blanks:
//
//   duration = ["-"] "P" (days | [days] "T" time)
//   days     = number "D"
//   time     = [number "H"] [number "M"] [number ["." fraction] "S"]      at least one of the three
//
// Years, months and weeks have no fixed length and are not accepted. A number is at most 4294967295, a fraction has one
// to six digits. Every failure is a DebuggableException with one of three messages:
//   "Could not convert XMLDuration to TimeInterval"
//   "Could not convert XMLDuration to TimeInterval due to integer overflow."   a number, or the whole, is too large
//   "Could not convert XMLDuration to TimeInterval: cannot handle more than microsecond precision."
class XMLDurationParser {
  public:
    // Throws as soon as the byte cannot stand here. After a failure the parser is of no use.
    void HandleChar(char c);

    // The interval, when the text ends here.
    TimeInterval Finish() const;

    // Throws the first of the messages.
    [[noreturn]] static void Fail();

  private:
    void HandleDigit(unsigned int digit);
    void HandleDesignator(char c);
    // The number before a designator, which it closes.
    std::uint32_t TakeNumber();
    std::uint32_t TakeComponent();
    void TakeSeconds();
    TimeInterval Sum() const;

    // The designators that may come next. A text has them in this order, so taking one rules out those before it.
    std::string_view allowed_ = "-P";
    bool digits_allowed_ = false;
    // A number has begun and no designator has closed it.
    bool digits_pending_ = false;
    std::uint32_t number_ = 0;
    // Ten to the power of the number's digits. It stops growing above 1,000,000.
    std::uint32_t scale_ = 1;
    bool component_complete_ = false;
    bool fraction_open_ = false;
    std::uint32_t whole_seconds_ = 0;

    bool negative_ = false;
    std::uint32_t days_ = 0;
    std::uint32_t hours_ = 0;
    std::uint32_t minutes_ = 0;
    std::uint32_t seconds_ = 0;
    std::uint32_t microseconds_ = 0;
};
