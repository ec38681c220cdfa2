#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// Finding where a run of ordinary bytes ends, eight bytes at a time.

namespace ByteScan {

// Marks the bytes of the word that equal `byte` by their top bits. Above the lowest mark there may be false ones.
inline std::uint64_t MarksOf(std::uint64_t word, char byte) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    auto difference = word ^ (ones * static_cast<unsigned char>(byte));
    return (difference - ones) & ~difference & (ones << 7);
}

// The first place of either byte, or `end`.
inline char const* FindEither(char const* at, char const* end, char one, char other) {
    for (; end - at >= 8; at += 8) {
        std::uint64_t word;
        std::memcpy(&word, at, 8);
        auto marks = MarksOf(word, one) | MarksOf(word, other);
        if (marks == 0) continue;
        if constexpr (std::endian::native != std::endian::little) break;
        return at + std::countr_zero(marks) / 8;
    }
    while (at != end && *at != one && *at != other) ++at;
    return at;
}

}  // namespace ByteScan
