#pragma once

#include <map>

#include "foundation/text/shared_ustring.h"

// Names in ascending order of their bytes. Any kind of UTF-8 string may be looked up.
struct XMLNameOrder {
    using is_transparent = void;
    bool operator()(UStringRef<UTF8> left, UStringRef<UTF8> right) const { return left < right; }
};

// The attributes of one element by name.
using XMLAttributes = std::map<SharedUString<UTF8>, SharedUString<UTF8>, XMLNameOrder>;
