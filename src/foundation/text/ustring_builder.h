#pragma once

#include <algorithm>
#include <memory>

#include "foundation/base/const_data.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/ustring_ref.h"

// Takes text piece by piece: Start once, Receive any number of times, ReceiveEnd once. The pieces are borrowed for the
// call only. The default operations do nothing.
template <class E>
class UTextReceiver {
  public:
    virtual ~UTextReceiver() = default;
    virtual void Start(E) {}
    virtual void Receive(ConstArrayOf<typename E::Unit>) {}
    virtual void ReceiveEnd() {}
};

// Collects text in a buffer that at least doubles when it grows, so that appending costs amortised constant time.
//
// What is appended must not be a view of the builder itself. As the end of a stream it takes its pieces as they come.
template <class E>
class UStringBuilder : public UTextReceiver<E> {
  public:
    using Unit = typename E::Unit;

    void Receive(ConstArrayOf<Unit> units) override {
        Append(UStringRef<E>(units.data(), units.data() + units.size()));
    }

    // The whole is known to be valid as long as every piece is.
    void Append(UStringRef<E> text) {
        known_valid_ = known_valid_ && text.KnownValid();
        Append(text.data(), text.size());
    }

    // A view of what was collected, until the builder is changed or destroyed.
    UStringRef<E> Ref() const { return {units_.get(), units_.get() + size_, known_valid_}; }
    std::size_t size() const { return size_; }
    // Starts over with the buffer kept.
    void Clear() {
        size_ = 0;
        known_valid_ = true;
    }

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
    bool known_valid_ = true;
};
