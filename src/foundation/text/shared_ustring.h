#pragma once

#include <utility>

#include "foundation/text/auto_ustring.h"
#include "foundation/text/sharing_link.h"

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
