#pragma once

#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/time/time_object.h"

// Text did not fit the room that a Buffer was given.
class DataOverflow : public DebuggableException {};

// Writes short text piece by piece into room of a fixed size that the caller owns, usually on the stack. It allocates
// nothing until the finished text is taken.
//
//   unsigned char room[8];
//   Buffer text(room);
//   text << TimeOfDay{7, 5, 9};     // 07:05:09
//
// A piece that does not fit throws DataOverflow; what stands in the buffer then is unspecified.
class Buffer {
  public:
    // The room must outlive the buffer.
    explicit Buffer(ArrayOf<unsigned char> room) : room_(room) {}

    Buffer& operator<<(std::string_view text);
    // The decimal digits of a value, at least `min_digits` of them.
    Buffer& Number(unsigned long long value, unsigned int min_digits);

    // What was written so far; valid until more is written.
    UStringRef<UTF8> Text() const { return {room_.data(), room_.data() + size_}; }
    AutoUString<UTF8> MakeText() const { return AutoUString<UTF8>(Text()); }

  private:
    ArrayOf<unsigned char> room_;
    std::size_t size_ = 0;
};

// The text form in which times travel between the client and this process:
//
//   Sun, 15 Nov 2026 02:16:00 +0000
//
// It is that of Internet mail (RFC 5322), English in every locale. TextToTime reads back every Valid() time in a zone of
// whole minutes that is less than 100 hours from UTC. Other values are written too: numbers as they stand, a month that
// there is not as "???".

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
