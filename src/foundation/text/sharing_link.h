#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <utility>

// Counts the sharers of something: one link a sharer, copied with it.
//
// The count and its mutex stand in one heap block, freed with the last link, so links of one group may be copied and
// destroyed on different threads at once; a single link is used by one thread at a time. A link may also stand for
// nothing: such a one counts no sharers and its copies stand for nothing.
class SharingLink {
  public:
    // The first link of a new group.
    SharingLink() : block_(new Block) {}
    // Stands for nothing.
    explicit SharingLink(std::nullptr_t) {}
    // Joins the group of `other`.
    SharingLink(SharingLink const& other) : block_(other.block_) {
        if (!block_) return;
        std::lock_guard lock(block_->mutex);
        ++block_->count;
    }
    // Takes the place of `other`, which stands for nothing afterwards.
    SharingLink(SharingLink&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    SharingLink& operator=(SharingLink other) noexcept {
        swap(other);
        return *this;
    }
    ~SharingLink() { Leave(); }

    // Whether this is the only link of its group. It must stand for something. The answer holds for as long as no other
    // thread can copy this very link.
    bool Alone() const {
        std::lock_guard lock(block_->mutex);
        return block_->count == 1;
    }

    // Ends this link's share early and answers whether it was the last: exactly one of several sharers that leave at
    // the same time is told so, and that one frees what was shared. To ask Alone first and leave then would leave a gap
    // in which two of them are told that they are not. Afterwards the link stands for nothing.
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
    Block* block_ = nullptr;
};
