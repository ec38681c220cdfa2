#pragma once

#include <array>

#include "foundation/text/shared_ustring.h"

// Makes shared strings of names that repeat, such as those of elements and attributes, so that a name met again costs
// neither memory nor an allocation.
//
// The cache keeps a fixed number of short names, the last one met in each place; anything else gets a string of its
// own. One thread at a time.
class XMLNameCache {
  public:
    SharedUString<UTF8> Get(UStringRef<UTF8> name) {
        if (name.empty() || name.size() > kLongest) return SharedUString<UTF8>(name);
        auto& known = known_[PlaceOf(name)];
        if (!(known == name)) known = SharedUString<UTF8>(name);
        return known;
    }

  private:
    static constexpr std::size_t kPlaces = 64;
    static constexpr std::size_t kLongest = 32;

    static std::size_t PlaceOf(UStringRef<UTF8> name) {
        auto last = name.size() - 1;
        return (name.size() + name[0] * 3u + name[last / 2] * 5u + name[last] * 7u) % kPlaces;
    }

    std::array<SharedUString<UTF8>, kPlaces> known_;
};
