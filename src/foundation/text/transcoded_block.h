#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "foundation/text/text_receiver.h"

// The block of 4,096 bytes that a transcoder collects its output in before handing it on.
//
// Output that was not flushed is dropped with the block: nothing is handed on while an exception passes.
template <class E>
class TranscodedBlock {
  public:
    explicit TranscodedBlock(UTextReceiver<E>& receiver) : receiver_(receiver) {}

    void Put(std::uint32_t unit) { units_[size_++] = static_cast<typename E::Unit>(unit); }

    // Makes sure that `units` more can be put.
    void MakeRoom(std::size_t units) {
        if (size_ + units > capacity) Flush();
    }
    void Flush() {
        if (size_ == 0) return;
        receiver_.Receive({units_, std::exchange(size_, 0)});
    }

  private:
    static constexpr std::size_t capacity = 4096 / sizeof(typename E::Unit);

    UTextReceiver<E>& receiver_;
    std::size_t size_ = 0;
    typename E::Unit units_[capacity];
};

// Calls put(block, unit) for each of `units` and hands the output on. One call puts at most `Longest` units.
template <std::size_t Longest, class E, class Unit, class Put>
void TranscodeEach(std::span<Unit const> units, UTextReceiver<E>& receiver, Put put) {
    TranscodedBlock<E> block(receiver);
    for (Unit unit : units) {
        block.MakeRoom(Longest);
        put(block, unit);
    }
    block.Flush();
}
