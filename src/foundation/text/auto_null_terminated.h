#pragma once

#include <memory>
#include <string_view>

#include "foundation/text/auto_ustring.h"

// An owned, zero-terminated copy of text, for platform interfaces. Move-only.
template <class Unit>
class AutoNullTerminated {
  public:
    // Holds the empty text, without a buffer.
    AutoNullTerminated() = default;
    // Copies the range. A zero unit inside it ends the text early for whoever reads it.
    AutoNullTerminated(Unit const* begin, Unit const* end) {
        auto size = static_cast<std::size_t>(end - begin);
        units_ = std::make_unique_for_overwrite<Unit[]>(size + 1);
        std::copy(begin, end, units_.get());
        units_[size] = 0;
    }
    // Takes over a buffer that already ends in a zero unit.
    explicit AutoNullTerminated(std::unique_ptr<Unit[]> terminated) : units_(std::move(terminated)) {}

    // Never null; valid as long as this object holds the text. The buffer stays where it is when the object moves.
    Unit const* c_str() const { return units_ ? units_.get() : EmptyString(); }

    // The shared empty text.
    static Unit const* EmptyString() {
        static constexpr Unit empty[1] = {};
        return empty;
    }

  private:
    std::unique_ptr<Unit[]> units_;
};

// A zero-terminated copy.
template <class E>
AutoNullTerminated<typename E::Unit> MakeNullTerminatedString(AutoUString<E> const& text) {
    return {text.begin(), text.end()};
}
