#pragma once

#include "foundation/text/auto_ustring.h"

// Text for a widget resource, owned, in the locale's encoding.

// A fixed English text, translated. Null is the empty text. Throws as MakeLocalString does.
AutoNullTerminated<char> ControlLiteral(char const* english);
// Text that is in the locale's encoding already.
AutoNullTerminated<char> ControlLiteral(AutoNullTerminated<char> text);
// A copy of the bytes as they stand, not translated. Null is the empty text.
AutoNullTerminated<char> FunkyControlLiteral(char const* text);
