#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ustring_ref.h"

// What every fuzz target is made of: one file that defines Fuzz.

// Takes any bytes. Whatever ends the process is a finding, and so is an exception that comes out.
void Fuzz(std::string_view input);

// A promise of the code under test. Ends the process when it is not kept.
void Require(bool kept);

// Whether `body` ends without one of the program's own exceptions. Any other passes through.
template <class Body>
bool Succeeds(Body body) try {
    body();
    return true;
} catch (DebuggableException const&) {
    return false;
}

inline UStringRef<UTF8> Text(std::string_view bytes) {
    return UStringRef<UTF8>(bytes);
}

// Takes an integer from the front of the input, as many of its bytes as there are.
template <class T>
T TakeInteger(std::string_view& input) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(T) && !input.empty(); ++i) {
        value = value << 8 | static_cast<unsigned char>(input[0]);
        input.remove_prefix(1);
    }
    return static_cast<T>(value);
}

// Takes what stands before the next `end` off the front of the input, and the `end` with it.
std::string_view TakeUntil(std::string_view& input, char end);
