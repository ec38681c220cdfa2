#pragma once

// Finding where a run of ordinary bytes ends.

namespace ByteScan {

inline constexpr int kBlock = 16;

// Whether one of the bytes stands in the block. Without an early exit, so that the compiler makes it a few vector
// instructions.
inline bool BlockHasEither(char const* block, char one, char other) {
    unsigned char found = 0;
    for (int i = 0; i < kBlock; ++i) found |= static_cast<unsigned char>((block[i] == one) | (block[i] == other));
    return found != 0;
}

// The first place of either byte, or `end`.
inline char const* FindEither(char const* at, char const* end, char one, char other) {
    while (end - at >= kBlock && !BlockHasEither(at, one, other)) at += kBlock;
    while (at != end && *at != one && *at != other) ++at;
    return at;
}

}  // namespace ByteScan
