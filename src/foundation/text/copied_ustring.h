#pragma once

#include "foundation/text/auto_ustring.h"

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
