#pragma once

#include <algorithm>
#include <vector>

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
        auto needed = units_.size() + units.size();
        if (needed > units_.capacity()) units_.reserve(std::max(needed, 2 * units_.capacity()));
        units_.insert(units_.end(), units.begin(), units.end());
    }
    void Append(UStringRef<E> text) { Receive({text.begin(), text.end()}); }

    // A view of what was collected, until the builder is changed or destroyed.
    UStringRef<E> Ref() const { return {units_.data(), units_.data() + units_.size()}; }

    // A copy of what was collected.
    AutoUString<E> MakeString() const { return AutoUString<E>(Ref()); }

  private:
    std::vector<Unit> units_;
};
