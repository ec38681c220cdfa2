#pragma once

#include <algorithm>
#include <memory>

#include "foundation/text/auto_ustring.h"
#include "foundation/text/text_receiver.h"

// Collects text in a buffer that at least doubles when it grows, so that appending costs amortised constant time.
template <class E>
class UStringBuilder : public UTextReceiver<E> {
  public:
    using Unit = typename E::Unit;

    void Receive(ConstArrayOf<Unit> units) override { Append(units.data(), units.size()); }

    void Append(UStringRef<E> text) { Append(text.data(), text.size()); }

    UStringRef<E> Ref() const { return {units_.get(), units_.get() + size_}; }
    std::size_t size() const { return size_; }
    void Clear() { size_ = 0; }

    // A copy of what was collected.
    AutoUString<E> MakeString() const { return AutoUString<E>(Ref()); }

  private:
    void Append(Unit const* units, std::size_t count) {
        if (count > capacity_ - size_) Grow(size_ + count);
        std::copy_n(units, count, units_.get() + size_);
        size_ += count;
    }
    void Grow(std::size_t needed) {
        auto capacity = std::max(needed, 2 * capacity_);
        auto grown = std::make_unique_for_overwrite<Unit[]>(capacity);
        std::copy_n(units_.get(), size_, grown.get());
        units_ = std::move(grown);
        capacity_ = capacity;
    }

    std::unique_ptr<Unit[]> units_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};
