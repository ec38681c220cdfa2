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
// by one thread at a time. A link may also stand for nothing: such a one counts no sharers and its copies stand for
// nothing.
class SharingLink {
  public:
    // The first link of a new group.
    SharingLink() : block_(new Block) {}
    // Stands for nothing.
    explicit SharingLink(std::nullptr_t) {}
    // Joins the group of `other`.
    SharingLink(SharingLink const& other) : block_(other.block_.load(std::memory_order_acquire)) {
        Block* block = block_.load(std::memory_order_relaxed);
        if (!block) return;
        std::lock_guard lock(block->mutex);
        ++block->count;
    }
    // Takes the place of `other`, which stands for nothing afterwards.
    SharingLink(SharingLink&& other) noexcept : block_(other.block_.load(std::memory_order_acquire)) {
        other.block_.store(nullptr, std::memory_order_relaxed);
    }
    SharingLink& operator=(SharingLink other) noexcept {
        swap(other);
        return *this;
    }
    ~SharingLink() { Leave(); }

    // Whether the link stands for something.
    explicit operator bool() const { return block_.load(std::memory_order_acquire); }

    // Makes a link that stands for nothing the first link of a new group. Like copying, and unlike all that changes a link
    // otherwise, this may be done to one link by several threads at once: they found one group between them.
    void Found() {
        if (*this) return;
        auto made = std::make_unique<Block>();
        Block* none = nullptr;
        if (block_.compare_exchange_strong(none, made.get(), std::memory_order_acq_rel)) made.release();
    }

    // Whether this is the only link of its group. It must stand for something. The answer holds for as long as no other
    // thread can copy this very link.
    bool Alone() const {
        Block* block = block_.load(std::memory_order_acquire);
        std::lock_guard lock(block->mutex);
        return block->count == 1;
    }

    // Ends this link's share early and answers whether it was the last: exactly one of several sharers that leave at
    // the same time is told so, and that one frees what was shared. To ask Alone first and leave then would leave a gap
    // in which two of them are told that they are not. Afterwards the link stands for nothing.
    bool Leave() {
        Block* block = block_.load(std::memory_order_acquire);
        if (!block) return false;
        bool last;
        {
            std::lock_guard lock(block->mutex);
            last = --block->count == 0;
        }
        if (last) delete block;
        block_.store(nullptr, std::memory_order_relaxed);
        return last;
    }

    void swap(SharingLink& other) noexcept {
        auto block = block_.load(std::memory_order_acquire);
        block_.store(other.block_.load(std::memory_order_acquire), std::memory_order_release);
        other.block_.store(block, std::memory_order_release);
    }

  private:
    struct Block {
        std::uint64_t count = 1;
        std::mutex mutex;
    };
    std::atomic<Block*> block_ = nullptr;
};

// An immutable string shared by copying: the copies stand over one buffer, which goes with the last of them.
//
// Copies of one string may be made, also of one object, and dropped on different threads; otherwise a single object is
// used by one thread at a time. What is never copied costs its buffer and nothing else: the count of the sharers is made
// with the first copy. An empty string shares nothing and allocates nothing.
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

    SharedUString(SharedUString const& other) : begin_(other.begin_), end_(other.end_), link_(other.Link()) {}
    SharedUString(SharedUString&& other) noexcept
        : begin_(std::exchange(other.begin_, nullptr)),
          end_(std::exchange(other.end_, nullptr)),
          link_(std::move(other.link_)) {}
    SharedUString& operator=(SharedUString other) noexcept {
        swap(other);
        return *this;
    }
    ~SharedUString() {
        if (!link_ || link_.Leave()) delete[] begin_;
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

    // Whether the text is valid is not kept.
    UStringRef<E> Ref() const { return {begin_, end_}; }
    operator UStringRef<E>() const { return Ref(); }

  private:
    SharingLink const& Link() const {
        if (!empty()) link_.Found();
        return link_;
    }

    Unit const* begin_ = nullptr;
    Unit const* end_ = nullptr;
    mutable SharingLink link_{nullptr};  // stands for nothing until there is somebody to share with
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
