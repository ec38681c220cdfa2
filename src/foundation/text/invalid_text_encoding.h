#pragma once

#include "foundation/base/debuggable_exception.h"

// Text is not valid in the encoding it is said to be in, or holds a code point that the target encoding has no form for.
class InvalidTextEncoding : public DebuggableException {};
