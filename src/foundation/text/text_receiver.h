#pragma once

#include "foundation/base/const_data.h"
#include "foundation/text/encodings.h"

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
