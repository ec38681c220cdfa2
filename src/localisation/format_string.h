#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "foundation/base/debuggable_exception.h"
#include "foundation/text/auto_ustring.h"
#include "foundation/text/ustring_ref.h"

// How formatting a text can fail. None carries data; nothing is rendered in part.

// An opening brace without a closing one after it.
class BadFormatStringError : public DebuggableException {};
// A variable without a name, or with a byte after its first that is no ASCII letter, digit or underscore.
class ImproperFormatVariableName : public DebuggableException {};
// A variable to which nothing is bound: a reserved name that does not exist, or one that only the translation uses.
class UndefinedFormatVariable : public DebuggableException {};
// The key has more variables than there are arguments: it is the key that asks for too many.
class TooManyFormatArguments : public DebuggableException {};
// The key has fewer variables than there are arguments: it asks for too few.
class TooFewFormatArguments : public DebuggableException {};

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

// A variable's name and its value. Views: the name lies in the key, the value with the caller.
//
// Bindings are sorted by name, then by value, so that a name is found by a binary search.
using FormatBinding = std::pair<UStringRef<UTF8>, UStringRef<UTF8>>;

// Whether the name begins with "_". These exist and need no argument:
//
//   _cbrace  }      _obrace  {      _cr  carriage return      _lf  line feed      _crlf  both      _tab  tab
bool IsFormatVariableNameReserved(UStringRef<UTF8> name);

// Accepts the name of a variable in a key: a reserved name that exists (else throws UndefinedFormatVariable), or any
// that has only ASCII letters, digits and underscores after its first byte (else, and when it is empty, throws
// ImproperFormatVariableName). Meant: the first byte may be anything.
void CheckFormatVariableName(UStringRef<UTF8> name);

// Pairs the key's variables, the reserved ones left out, with the arguments in their order, and sorts the pairs.
// `bindings` has as many places as there are arguments. Throws TooManyFormatArguments, TooFewFormatArguments and what
// CheckFormatVariableName throws.
//
// A name that stands twice takes two arguments, of which the smallest serves wherever it stands: meant, it is what a
// lookup in the sorted pairs finds.
void MakeFormatParameterBindings(UStringRef<UTF8> key, ConstArrayOf<UStringRef<UTF8>> arguments,
                                 ArrayOf<FormatBinding> bindings);

// The value of a variable, reserved or bound. Throws ImproperFormatVariableName for the empty name and
// UndefinedFormatVariable for one that is not found; beyond that the name is not checked.
UStringRef<UTF8> FormatExpressionValue(UStringRef<UTF8> name, ConstArrayOf<FormatBinding> bindings);

// What a segment renders as: a literal as it stands, a variable as its value.
UStringRef<UTF8> FormatSegmentValue(UFormatSegment const& segment, ConstArrayOf<FormatBinding> bindings);

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
