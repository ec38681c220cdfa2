#include "dialogs/snooze_choices.h"

#include <algorithm>
#include <span>

#include "localisation/uformat.h"

namespace {

struct Choice {
    char const* label;
    int minutes;
};

constexpr Choice kChoices[] = {
    {"15 minutes before deadline", -15},
    {"5 minutes before deadline", -5},
    {"in 1 minute", 1},
    {"in 5 minutes", 5},
    {"in 10 minutes", 10},
    {"in 15 minutes", 15},
    {"in 30 minutes", 30},
    {"in 45 minutes", 45},
    {"in 1 hour", 60},
    {"in 2 hours", 120},
    {"in 4 hours", 240},
    {"in 6 hours", 360},
    {"in 8 hours", 480},
    {"in 16 hours", 960},
    {"in 1 day", 1440},
    {"in 2 days", 2880},
    {"in 3 days", 4320},
    {"in 4 days", 5760},
    {"in 5 days", 7200},
};
constexpr std::size_t kBeforeDeadline = 2;

// Exact for any two intervals.
unsigned long long Distance(long long a, long long b) {
    auto [low, high] = std::minmax(a, b);
    return static_cast<unsigned long long>(high) - static_cast<unsigned long long>(low);
}

}  // namespace

std::vector<SnoozeChoice> MakeSnoozeChoices(bool any_deadline) {
    std::vector<SnoozeChoice> choices;
    for (auto const& choice : std::span(kChoices).subspan(any_deadline ? 0 : kBeforeDeadline))
        choices.push_back({MakeUString(UFormat(choice.label)), choice.minutes});
    return choices;
}

int DefaultSnoozeRow(std::vector<SnoozeChoice> const& choices, TimeInterval interval) {
    auto distance = [&](std::size_t row) {
        return Distance(interval.Microseconds(), TimeInterval::Minutes(choices[row].minutes).Microseconds());
    };
    std::size_t best = 0;
    while (best + 1 < choices.size() && distance(best + 1) < distance(best)) ++best;
    return static_cast<int>(best);
}
