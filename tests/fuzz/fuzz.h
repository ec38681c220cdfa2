#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ustring_ref.h"

// What every fuzz target is made of: one file that defines Fuzz.

// Takes any bytes. Whatever ends the process is a finding, and so is an exception that comes out.
void Fuzz(std::string_view input);

// The entry that libFuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Fuzz({reinterpret_cast<char const*>(data), size});
    return 0;
}

// A promise of the code under test. Ends the process when it is not kept.
inline void Require(bool kept) {
    if (!kept) std::abort();
}

// Whether `body` ends without one of the program's own exceptions. Any other passes through.
template <class Body>
bool Succeeds(Body body) try {
    body();
    return true;
} catch (DebuggableException const&) {
    return false;
}

using Text = UStringRef<UTF8>;

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
inline std::string_view TakeUntil(std::string_view& input, char end) {
    auto const taken = input.substr(0, input.find(end));
    input.remove_prefix(std::min(taken.size() + 1, input.size()));
    return taken;
}

// Hands the text over in pieces, whose sizes less one are the bytes of `sizes`.
template <class T, class Take>
void InPieces(T text, std::string_view sizes, Take take) {
    while (!text.empty()) {
        auto const end = text.begin() + std::min<std::size_t>(text.size(), 1 + TakeInteger<unsigned char>(sizes));
        take(T(text.begin(), end));
        text = T(end, text.end());
    }
}
