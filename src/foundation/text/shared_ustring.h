#pragma once

#include <utility>

#include "foundation/text/auto_ustring.h"
#include "foundation/text/sharing_link.h"

// An immutable string shared by copying: the copies stand over one buffer, which goes with the last of them.
//
// Copies of one string may be made and dropped on different threads; a single object is used by one thread at a time.
// An empty string shares nothing and allocates nothing.
template <class E>
class SharedUString {
  public:
    using Unit = typename E::Unit;

    SharedUString() = default;
    // Takes over the buffer. When memory for the sharing count is short, `text` keeps it.
    SharedUString(ResourceTransfer<AutoUString<E>> text) {
        if (text.empty()) return;
        link_ = SharingLink();
        known_valid_ = text.Ref().KnownValid();
        end_ = text.end();
        begin_ = text.Release().release();
    }
    explicit SharedUString(UStringRef<E> text) : SharedUString(AutoUString<E>(text)) {}

    SharedUString(SharedUString const& other) = default;
    SharedUString(SharedUString&& other) noexcept { swap(other); }
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
        std::swap(known_valid_, other.known_valid_);
    }

    Unit const* begin() const { return begin_; }
    Unit const* end() const { return end_; }
    std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
    bool empty() const { return begin_ == end_; }
    std::string_view AsStringView() const requires ByteEncoding<E> { return Ref().AsStringView(); }

    UStringRef<E> Ref() const { return {begin_, end_, known_valid_}; }
    operator UStringRef<E>() const { return Ref(); }

  private:
    Unit const* begin_ = nullptr;
    Unit const* end_ = nullptr;
    SharingLink link_{nullptr};
    bool known_valid_ = false;
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
