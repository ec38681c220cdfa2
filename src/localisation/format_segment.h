#pragma once

#include "foundation/text/ustring_ref.h"

// One piece of a format string: a literal run, or a variable by its name without the braces. A view into the string.
struct UFormatSegment {
    bool variable = false;
    UStringRef<UTF8> text;
};

// Walks a format string segment by segment:
//
//   "at {time}{_lf}"    the literal "at ", the variable "time", the variable "_lf"
//
// Only "{" opens a variable; a lone "}" is ordinary text, and there is no escape. The string must outlive the iterator.
// Throws BadFormatStringError on reaching a "{" without a "}" after it.
class UFormatIterator {
  public:
    // At the first segment.
    explicit UFormatIterator(UStringRef<UTF8> format);
    // Behind the last segment.
    static UFormatIterator End(UStringRef<UTF8> format);

    // Only before the end.
    UFormatSegment const& operator*() const { return segment_; }
    UFormatSegment const* operator->() const { return &segment_; }
    UFormatIterator& operator++() {
        GetNextSegment();
        return *this;
    }
    // Moves on to the next segment, or to the end.
    void GetNextSegment();

    // Whether both stand at the same place of the same string.
    bool operator==(UFormatIterator const& other) const { return current_ == other.current_; }

  private:
    UFormatIterator() = default;

    using Position = UTF8::Unit const*;
    Position current_ = nullptr;
    Position next_ = nullptr;
    Position end_ = nullptr;
    UFormatSegment segment_;
};
