#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "foundation/text/ustring_ref.h"

// How a class that owns a resource says that it takes over another's, which is left empty.
template <class T>
using ResourceTransfer = T&&;

// Text that owns its units; moved by an explicit transfer, never copied implicitly.
//
// A zero unit, not counted in the length, stands after the last one; an empty string owns no buffer. Whether the text is
// valid in E is not checked.
template <class E>
class AutoUString {
  public:
    using Unit = typename E::Unit;

    AutoUString() = default;
    // As many units, for the caller to fill through data().
    explicit AutoUString(std::size_t size) : size_(size) {
        if (size_ == 0) return;
        units_ = std::make_unique_for_overwrite<Unit[]>(size_ + 1);
        units_[size_] = 0;
    }
    // Copies the range.
    AutoUString(Unit const* begin, Unit const* end) : size_(static_cast<std::size_t>(end - begin)) {
        if (size_ == 0) return;
        units_ = std::make_unique_for_overwrite<Unit[]>(size_ + 1);
        std::copy(begin, end, units_.get());
        units_[size_] = 0;
    }
    explicit AutoUString(UStringRef<E> text) : AutoUString(text.begin(), text.end()) {}
    AutoUString(ResourceTransfer<AutoUString> other) noexcept
        : units_(std::move(other.units_)), size_(std::exchange(other.size_, 0)) {}
    AutoUString& operator=(ResourceTransfer<AutoUString> other) noexcept {
        units_ = std::move(other.units_);
        size_ = std::exchange(other.size_, 0);
        return *this;
    }

    Unit* data() { return units_.get(); }
    Unit const* begin() const { return units_.get(); }
    Unit const* end() const { return units_.get() + size_; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    std::string_view AsStringView() const requires ByteEncoding<E> { return Ref().AsStringView(); }

    UStringRef<E> Ref() const { return {begin(), end()}; }
    operator UStringRef<E>() const { return Ref(); }

    // Gives the buffer up to the caller (null for an empty string); the string is empty afterwards.
    std::unique_ptr<Unit[]> Release() {
        size_ = 0;
        return std::move(units_);
    }

  private:
    std::unique_ptr<Unit[]> units_;
    std::size_t size_ = 0;
};

template <class E>
bool operator==(AutoUString<E> const& left, AutoUString<E> const& right) {
    return left.Ref() == right.Ref();
}
template <class E>
bool operator==(AutoUString<E> const& left, UStringRef<E> const& right) {
    return left.Ref() == right;
}

// Copy text into a string of its own, without validation.
template <class E>
AutoUString<E> MakeUString(typename E::Unit const* begin, typename E::Unit const* end, E const&) {
    return AutoUString<E>(begin, end);
}
template <class E>
AutoUString<E> MakeUString(UStringRef<E> text) {
    return AutoUString<E>(text);
}

// An owned, zero-terminated copy of text, for platform interfaces. Move-only.
template <class Unit>
class AutoNullTerminated {
  public:
    // Holds the empty text, without a buffer.
    AutoNullTerminated() = default;
    // Copies the range. A zero unit inside it ends the text early for whoever reads it.
    AutoNullTerminated(Unit const* begin, Unit const* end) {
        auto size = static_cast<std::size_t>(end - begin);
        units_ = std::make_unique_for_overwrite<Unit[]>(size + 1);
        std::copy(begin, end, units_.get());
        units_[size] = 0;
    }
    // Takes over a buffer that already ends in a zero unit.
    explicit AutoNullTerminated(std::unique_ptr<Unit[]> terminated) : units_(std::move(terminated)) {}

    // Never null; valid as long as this object holds the text. The buffer stays where it is when the object moves.
    Unit const* c_str() const { return units_ ? units_.get() : EmptyString(); }

    // The shared empty text.
    static Unit const* EmptyString() {
        static constexpr Unit empty[1] = {};
        return empty;
    }

  private:
    std::unique_ptr<Unit[]> units_;
};

// A zero-terminated copy.
template <class E>
AutoNullTerminated<typename E::Unit> MakeNullTerminatedString(AutoUString<E> const& text) {
    return {text.begin(), text.end()};
}

// A string that is copied whole when the object is copied.
template <class E>
class CopiedUString {
  public:
    CopiedUString() = default;
    CopiedUString(UStringRef<E> text) : text_(text) {}
    CopiedUString(ResourceTransfer<AutoUString<E>> text) : text_(std::move(text)) {}
    CopiedUString(CopiedUString const& other) : text_(other.Ref()) {}
    CopiedUString(CopiedUString&&) noexcept = default;
    CopiedUString& operator=(CopiedUString other) noexcept {
        text_ = std::move(other.text_);
        return *this;
    }

    UStringRef<E> Ref() const { return text_; }
    operator UStringRef<E>() const { return text_; }
    bool empty() const { return text_.empty(); }

  private:
    AutoUString<E> text_;
};

template <class E>
bool operator==(CopiedUString<E> const& left, CopiedUString<E> const& right) {
    return left.Ref() == right.Ref();
}
