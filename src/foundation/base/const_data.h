#pragma once

#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

// A byte string that owns its bytes, any value of a byte included.
using Stringy = std::string;

// Views over a sequence of T that somebody else owns.
template <class T>
using ConstArrayOf = std::span<T const>;
template <class T>
using ArrayOf = std::span<T>;

// A range of bytes that somebody else owns and keeps alive.
class ConstData {
  public:
    constexpr ConstData() = default;
    constexpr ConstData(unsigned char const* begin, unsigned char const* end) : begin_(begin), end_(end) {}
    ConstData(std::string_view bytes)
        : begin_(reinterpret_cast<unsigned char const*>(bytes.data())), end_(begin_ + bytes.size()) {}
    ConstData(Stringy const& bytes) : ConstData(std::string_view(bytes)) {}
    // A null pointer gives the empty range.
    ConstData(char const* text) : ConstData(text ? std::string_view(text) : std::string_view()) {}

    constexpr unsigned char const* begin() const { return begin_; }
    constexpr unsigned char const* end() const { return end_; }
    constexpr std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
    constexpr bool empty() const { return begin_ == end_; }

    std::string_view AsStringView() const { return {reinterpret_cast<char const*>(begin_), size()}; }

  private:
    unsigned char const* begin_ = nullptr;
    unsigned char const* end_ = nullptr;
};
