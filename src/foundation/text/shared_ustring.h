#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>

#include "foundation/text/auto_ustring.h"

// Counts the sharers of something: one link a sharer, copied with it.
//
// The count and its mutex stand in one heap block, freed with the last link, so links of one group may be copied and
// destroyed on different threads at once. Several threads may also copy one link at once; otherwise a single link is used
// by one thread at a time.
//
// The block is made with the first copy, for most strings are never copied: with a block each from the start, the tree
// of a document of small elements takes 16.2 instead of 10.3 MiB, and longer to build and free than expat's.
class SharingLink {
  public:
    // The only link of a new group.
    SharingLink() = default;
    // Joins the group of `other`.
    SharingLink(SharingLink const& other) : block_(other.Join()) {}
    // Takes the place of `other`, which becomes the only link of a new group.
    SharingLink(SharingLink&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    SharingLink& operator=(SharingLink other) noexcept {
        swap(other);
        return *this;
    }
    ~SharingLink() { Leave(); }

    // Whether this is the only link of its group. A yes holds for as long as no other thread can copy this very link.
    bool Alone() const {
        if (!block_) return true;
        std::lock_guard lock(block_->mutex);
        return block_->count == 1;
    }

    // Leaves the group for a new one, and answers whether it was the group's last link: of several sharers that leave at
    // the same time exactly one is told so, and that one frees what was shared. Two that asked whether they are Alone
    // first, and left then, could both be told that they are not.
    bool Leave() {
        auto block = std::exchange(block_, nullptr);
        if (!block) return true;
        std::unique_lock lock(block->mutex);
        bool last = --block->count == 0;
        lock.unlock();
        if (last) delete block;
        return last;
    }

    void swap(SharingLink& other) noexcept { std::swap(block_, other.block_); }

  private:
    struct Block {
        std::uint64_t count = 1;
        std::mutex mutex;
    };

    // The block, made if need be, with one more link counted. Of several threads that make one at once, one prevails.
    Block* Join() const {
        std::atomic_ref<Block*> shared(block_);
        Block* block = shared;
        if (!block) {
            auto made = std::make_unique<Block>();
            if (shared.compare_exchange_strong(block, made.get())) block = made.release();
        }
        std::lock_guard lock(block->mutex);
        ++block->count;
        return block;
    }

    mutable Block* block_ = nullptr;  // null for a link that is the only one of its group and always was
};

// An immutable string shared by copying: the copies stand over one buffer, which goes with the last of them.
//
// Copies of one string may be made, also of one object, and dropped on different threads; otherwise a single object is
// used by one thread at a time. An empty string shares nothing and allocates nothing.
template <class E>
class SharedUString {
  public:
    using Unit = typename E::Unit;

    SharedUString() = default;
    // Takes over the buffer.
    SharedUString(ResourceTransfer<AutoUString<E>> text) noexcept : end_(text.end()) {
        begin_ = text.Release().release();
    }
    explicit SharedUString(UStringRef<E> text) : SharedUString(AutoUString<E>(text)) {}

    SharedUString(SharedUString const& other)
        : begin_(other.begin_), end_(other.end_), link_(other.empty() ? SharingLink() : other.link_) {}
    SharedUString(SharedUString&& other) noexcept
        : begin_(std::exchange(other.begin_, nullptr)),
          end_(std::exchange(other.end_, nullptr)),
          link_(std::move(other.link_)) {}
    SharedUString& operator=(SharedUString other) noexcept {
        swap(other);
        return *this;
    }
    ~SharedUString() {
        if (link_.Leave()) delete[] begin_;
    }

    void swap(SharedUString& other) noexcept {
        std::swap(begin_, other.begin_);
        std::swap(end_, other.end_);
        link_.swap(other.link_);
    }

    Unit const* begin() const { return begin_; }
    Unit const* end() const { return end_; }
    std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
    bool empty() const { return begin_ == end_; }
    std::string_view AsStringView() const requires ByteEncoding<E> { return Ref().AsStringView(); }

    UStringRef<E> Ref() const { return {begin_, end_}; }
    operator UStringRef<E>() const { return Ref(); }

  private:
    Unit const* begin_ = nullptr;
    Unit const* end_ = nullptr;
    SharingLink link_;
};

template <class E>
bool operator==(SharedUString<E> const& left, SharedUString<E> const& right) {
    return left.Ref() == right.Ref();
}
template <class E>
bool operator==(SharedUString<E> const& left, UStringRef<E> const& right) {
    return left.Ref() == right;
}
template <class E>
bool operator<(SharedUString<E> const& left, SharedUString<E> const& right) {
    return left.Ref() < right.Ref();
}
