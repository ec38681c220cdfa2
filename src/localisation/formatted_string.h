#pragma once

#include <array>
#include <cstddef>

#include "foundation/text/auto_ustring.h"
#include "localisation/format_bindings.h"

// A text to render and the bindings of its variables, sorted. Views: what they lie in must outlive it.
template <std::size_t N>
struct FormattedString {
    UStringRef<UTF8> text;
    std::array<FormatBinding, N> bindings;
};

// Walks a text segment by segment, each already replaced by what it renders as. Throws what UFormatIterator and
// FormatSegmentValue throw.
class FormattedStringIterator {
  public:
    FormattedStringIterator(UFormatIterator segment, ConstArrayOf<FormatBinding> bindings)
        : segment_(segment), bindings_(bindings) {}

    UStringRef<UTF8> operator*() const { return FormatSegmentValue(*segment_, bindings_); }
    FormattedStringIterator& operator++() {
        ++segment_;
        return *this;
    }
    bool operator==(FormattedStringIterator const& other) const { return segment_ == other.segment_; }

  private:
    UFormatIterator segment_;
    ConstArrayOf<FormatBinding> bindings_;
};

// Renders a text: its segments one after the other, copied as they stand. A value with braces in it is not formatted
// again, and nothing is checked to be valid UTF-8.
AutoUString<UTF8> MakeUString(FormattedStringIterator begin, FormattedStringIterator end);

template <std::size_t N>
AutoUString<UTF8> MakeUString(FormattedString<N> const& string) {
    return MakeUString(FormattedStringIterator(UFormatIterator(string.text), string.bindings),
                       FormattedStringIterator(UFormatIterator::End(string.text), string.bindings));
}
