#pragma once

#include <array>

// What taking actions involves, said in one paragraph: three families of 23 English sentences, numbered alike. Row 0 is
// the empty text.
//
// The rows are made of three facts. Deadline: none in 0, 1, 4, 5, 8, 9; "within {DeadlineText}" in 2, 3, 6, 7, 10, 11;
// "now" in 12 to 17; "automatically in {DeadlineText}" in 18 to 23. Work to be saved: the odd rows. Restart: 4 to 7, 14,
// 15, 20, 21; shutdown: 8 to 11, 16, 17, 22, 23.
using ActionSentences = std::array<char const*, 24>;

extern ActionSentences const kOneActionSentences;
extern ActionSentences const kSelectedActionsSentences;
extern ActionSentences const kPendingActionsSentences;
