#include "tests/fuzz/fuzz.h"

#include <algorithm>
#include <cstdlib>

void Require(bool kept) {
    if (!kept) std::abort();
}

std::string_view TakeUntil(std::string_view& input, char end) {
    auto const taken = input.substr(0, input.find(end));
    input.remove_prefix(std::min(taken.size() + 1, input.size()));
    return taken;
}

// The entry that libFuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Fuzz({reinterpret_cast<char const*>(data), size});
    return 0;
}
