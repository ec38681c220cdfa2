// Any bytes as UTF-8, and as UTF-16, decode the same way however they come.
#include <vector>

#include "tests/fuzz/decoding.h"

void Fuzz(std::string_view input) {
    CheckDecoding(Text(input));
    std::vector<std::uint16_t> units;
    while (!input.empty()) units.push_back(TakeInteger<std::uint16_t>(input));
    CheckDecoding(UStringRef<UTF16>(units.data(), units.data() + units.size()));
}
