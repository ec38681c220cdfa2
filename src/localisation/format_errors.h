#pragma once

#include "foundation/base/debuggable_exception.h"

// How formatting a text can fail. None carries data; nothing is rendered in part.

// An opening brace without a closing one after it.
class BadFormatStringError : public DebuggableException {};
// A variable without a name, or with a byte in it that is no ASCII letter, digit or underscore.
class ImproperFormatVariableName : public DebuggableException {};
// A variable to which nothing is bound: a reserved name that does not exist, or one that only the translation uses.
class UndefinedFormatVariable : public DebuggableException {};
// The key has more variables than there are arguments: it is the key that asks for too many.
class TooManyFormatArguments : public DebuggableException {};
// The key has fewer variables than there are arguments: it asks for too few.
class TooFewFormatArguments : public DebuggableException {};
