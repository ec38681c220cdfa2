#pragma once

#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"

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
    // The decimal digits of a value, at least `minDigits` of them.
    Buffer& Number(unsigned long long value, unsigned int minDigits);

    // What was written so far; valid until more is written.
    UStringRef<UTF8> Text() const { return {room_.data(), room_.data() + size_, true}; }
    AutoUString<UTF8> MakeText() const { return AutoUString<UTF8>(Text()); }

  private:
    ArrayOf<unsigned char> room_;
    std::size_t size_ = 0;
};
