#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/base/const_data.h"

// The encodings that text can be held in, as tags: a string class or transcoder is parameterised by one of them, and
// each names its code unit.
struct UTF8 {
    using Unit = unsigned char;
};
struct UTF16 {
    using Unit = std::uint16_t;
};
struct UTF32 {
    using Unit = std::uint32_t;
};
struct USAscii {
    using Unit = unsigned char;
};
// The 8-bit encoding of the process's current locale, as the C library and the X toolkit read it.
struct Local8Bit {
    using Unit = char;
};

// The encodings whose units are bytes.
template <class E>
concept ByteEncoding = sizeof(typename E::Unit) == 1;

// A view over text in the encoding E: it owns nothing, and its owner must outlive it.
//
// It also carries whether whoever made it knows the text to be valid in E: of zero-terminated literals and of numerals
// that is known, of bytes from outside and of what a string object or a buffer holds it is not. Nothing is checked.
template <class E>
class UStringRef {
  public:
    using Unit = typename E::Unit;

    constexpr UStringRef() = default;
    constexpr UStringRef(Unit const* begin, Unit const* end, bool valid = false)
        : begin_(begin), end_(end), known_valid_(valid) {}
    // Zero-terminated text, taken for a literal; a null pointer gives the empty reference.
    UStringRef(char const* text) requires ByteEncoding<E>
        : UStringRef(text ? std::string_view(text) : std::string_view()) {
        known_valid_ = true;
    }
    explicit UStringRef(std::string_view bytes) requires ByteEncoding<E>
        : begin_(reinterpret_cast<Unit const*>(bytes.data())), end_(begin_ + bytes.size()) {}

    constexpr Unit const* begin() const { return begin_; }
    constexpr Unit const* end() const { return end_; }
    constexpr Unit const* data() const { return begin_; }
    constexpr std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
    constexpr bool empty() const { return begin_ == end_; }
    constexpr Unit operator[](std::size_t index) const { return begin_[index]; }
    constexpr bool KnownValid() const { return known_valid_; }

    // The same bytes for code that works on bytes.
    std::string_view AsStringView() const requires ByteEncoding<E> {
        return {reinterpret_cast<char const*>(begin_), size()};
    }
    ConstData AsData() const requires ByteEncoding<E> { return AsStringView(); }

  private:
    Unit const* begin_ = nullptr;
    Unit const* end_ = nullptr;
    bool known_valid_ = false;
};

// Unit by unit, unsigned; a string stands before a longer one that it begins.
template <class E>
bool operator==(UStringRef<E> const& left, UStringRef<E> const& right) {
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin());
}
template <class E>
bool operator<(UStringRef<E> const& left, UStringRef<E> const& right) {
    if constexpr (ByteEncoding<E>) return left.AsStringView() < right.AsStringView();
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end());
}
