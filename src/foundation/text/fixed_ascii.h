#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/text/ustring_ref.h"

// A text does not fit the fixed capacity meant for it.
class ConstDataCapacityExceeded : public DebuggableException {};

// A short ASCII string that lives in the object itself: a length and up to Capacity characters, with a NUL after the
// last one. For numerals and names whose greatest length is known; nothing checks that the bytes are ASCII.
//
// Appending beyond the capacity throws ConstDataCapacityExceeded and leaves the string as it was. The views it converts
// to are valid as long as the object is neither changed nor destroyed.
template <std::size_t Capacity>
class FixedAscii {
  public:
    FixedAscii() = default;
    explicit FixedAscii(ConstData text) { Append(text); }

    void Append(unsigned char character) { Append(ConstData(&character, &character + 1)); }
    void Append(ConstData text) {
        if (text.size() > Capacity - size_) throw ConstDataCapacityExceeded();
        std::copy(text.begin(), text.end(), characters_ + size_);
        size_ += text.size();
    }

    unsigned char const* begin() const { return characters_; }
    unsigned char const* end() const { return characters_ + size_; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    char const* c_str() const { return reinterpret_cast<char const*>(characters_); }

    std::string_view AsStringView() const { return {c_str(), size_}; }
    ConstData AsData() const { return {begin(), end()}; }
    UStringRef<USAscii> Ref() const { return {begin(), end(), true}; }
    operator ConstData() const { return AsData(); }
    operator UStringRef<USAscii>() const { return Ref(); }

    bool operator==(FixedAscii const& other) const { return AsStringView() == other.AsStringView(); }

  private:
    std::size_t size_ = 0;
    // Zero after the last character.
    unsigned char characters_[Capacity + 1] = {};
};
