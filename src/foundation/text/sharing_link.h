#pragma once

#include <cstdint>
#include <mutex>
#include <utility>

// Counts the sharers of something: one link a sharer, copied with it.
//
// The count and its mutex stand in one heap block, so links may be copied and destroyed on different threads at once.
class SharingLink {
  public:
    SharingLink() : block_(new Block) {}
    SharingLink(SharingLink const& other) : block_(other.block_) {
        std::lock_guard lock(block_->mutex);
        ++block_->count;
    }
    SharingLink& operator=(SharingLink const& other) {
        SharingLink copy(other);
        swap(copy);
        return *this;
    }
    ~SharingLink() { Leave(); }

    // Whether this is the only link.
    bool Alone() const {
        std::lock_guard lock(block_->mutex);
        return block_->count == 1;
    }

    // Ends this link's share early and answers whether it was the last: exactly one of several sharers that leave at
    // the same time is told so, and that one frees what was shared. Afterwards the link may only be destroyed.
    bool Leave() {
        if (!block_) return false;
        bool last;
        {
            std::lock_guard lock(block_->mutex);
            last = --block_->count == 0;
        }
        if (last) delete block_;
        block_ = nullptr;
        return last;
    }

    void swap(SharingLink& other) noexcept { std::swap(block_, other.block_); }

  private:
    struct Block {
        std::uint64_t count = 1;
        std::mutex mutex;
    };
    Block* block_;
};
