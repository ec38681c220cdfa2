// A translation file gives for each key what a plain reading of its lines gives.
#include <map>

#include "localisation/format_overrides.h"
#include "tests/fuzz/fuzz.h"

void Fuzz(std::string_view input) {
    FormatOverrideSet const overrides{Text(input)};
    std::map<std::string_view, std::string_view> expected;
    while (!input.empty()) {
        auto const line = TakeUntil(input, input.find('\r') < input.find('\n') ? '\r' : '\n');
        auto const key = line.substr(0, line.find('\t')), text = line.substr(line.rfind('\t') + 1);
        if (!key.empty() && key.size() < line.size()) {
            auto& smallest = expected.try_emplace(key, text).first->second;
            smallest = std::min(smallest, text);
        }
        Require(overrides.HasOverride(Text(line)) <= (line.find('\t') == line.npos));
    }
    for (auto [key, text] : expected) Require(overrides.GetOverride(Text(key)).AsStringView() == text);
}
