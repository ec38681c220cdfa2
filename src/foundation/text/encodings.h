#pragma once

#include <cstdint>

// The encodings that text can be held in, as tags: a string class or transcoder is parameterised by one of them, and
// each names its code unit.
struct UTF8 {
    using Unit = unsigned char;
};
struct UTF16 {
    using Unit = std::uint16_t;
};
struct UTF32 {
    using Unit = std::uint32_t;
};
struct USAscii {
    using Unit = unsigned char;
};
// The 8-bit encoding of the process's current locale, as the C library and the X toolkit read it.
struct Local8Bit {
    using Unit = char;
};

// The encodings whose units are bytes.
template <class E>
concept ByteEncoding = sizeof(typename E::Unit) == 1;
