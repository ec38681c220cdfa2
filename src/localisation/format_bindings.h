#pragma once

#include <utility>

#include "localisation/format_segment.h"

// What the variables of a format string stand for: values by name, sorted by name, then by value, so that a name is
// found by a binary search. Views throughout: the names lie in the key, the values with the caller.
//
// A name that begins with "_" is reserved. These exist and need no argument:
//
//   _cbrace  }      _obrace  {      _cr  carriage return      _lf  line feed      _crlf  both      _tab  tab

// A variable's name and its value.
using FormatBinding = std::pair<UStringRef<UTF8>, UStringRef<UTF8>>;

// Whether the name begins with "_".
bool IsFormatVariableNameReserved(UStringRef<UTF8> name);

// Accepts the name of a variable in a key: a reserved name that exists (else throws UndefinedFormatVariable), or any
// that has only ASCII letters, digits and underscores after its first byte (else, and when it is empty, throws
// ImproperFormatVariableName). The first byte may be anything: meant, keys in use have such names.
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
