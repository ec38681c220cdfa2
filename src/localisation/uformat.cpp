#include "localisation/uformat.h"

#include <cstring>

AutoNullTerminated<char> ControlLiteral(char const* english) {
    return MakePlatformString(UFormat(english));
}

AutoNullTerminated<char> ControlLiteral(AutoNullTerminated<char> text) {
    return text;
}

AutoNullTerminated<char> FunkyControlLiteral(char const* text) {
    if (!text) return {};
    return {text, text + std::strlen(text)};
}
