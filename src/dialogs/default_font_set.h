#pragma once

#include <string>
#include <string_view>

// Makes sure that the toolkit's default font set can be created on the display (X Logical Font Description, XLFD).
//
// A set that the resource database names and that can be created stays; so does an unset one while 12-point fonts of any
// kind exist. Otherwise the lowest of the sets that can be made from the server's 12-point fonts is stored in the
// display's resource database. Character sets missing from a font set are tolerated. Main thread, display open.
void ConfigValidDefaultFontSet();

// The pattern of the font set that a font name belongs to: its character set, after the 13th dash, replaced by any.
// Empty for a name with fewer dashes.
std::string FontSetPattern(std::string_view fontName);
