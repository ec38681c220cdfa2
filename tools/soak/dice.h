#pragma once

#include <iterator>
#include <random>

namespace tools {

// Choices at random, the same ones again for the same seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : random_(seed) {}

    // Not negative, below `limit`.
    int Roll(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    bool Chance(int percent) { return Roll(100) < percent; }
    // One of a container that is not empty.
    template <class Choices>
    auto const& AnyOf(Choices const& choices) {
        return *std::next(std::begin(choices), Roll(static_cast<int>(std::size(choices))));
    }

  private:
    std::mt19937 random_;
};

}  // namespace tools
