#pragma once

#include <optional>
#include <utility>

// An optional value: null, or holding a T by value. A default one is null.
//
// Reading the value of a null one is a caller's fault.
template <class T>
class NullOr {
  public:
    NullOr() = default;
    NullOr(T value) : value_(std::move(value)) {}

    // The shared null of this type.
    static NullOr const& Null() {
        static NullOr const null;
        return null;
    }

    bool IsNull() const { return !value_.has_value(); }
    explicit operator bool() const { return value_.has_value(); }

    T const& operator*() const { return *value_; }
    T& operator*() { return *value_; }
    T const* operator->() const { return &*value_; }
    T* operator->() { return &*value_; }

    bool operator==(NullOr const&) const = default;

  private:
    std::optional<T> value_;
};

// A reference that may be absent. It owns nothing: what it refers to must outlive it.
template <class T>
class NullOrConstRef {
  public:
    NullOrConstRef() = default;
    NullOrConstRef(T const& target) : target_(&target) {}

    bool IsNull() const { return target_ == nullptr; }
    explicit operator bool() const { return target_ != nullptr; }
    T const& operator*() const { return *target_; }
    T const* operator->() const { return target_; }

  private:
    T const* target_ = nullptr;
};
