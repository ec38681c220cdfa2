#pragma once

#include <algorithm>

#include "foundation/base/const_data.h"

// Calls visit(ConstData line) for each line of `text`, in order and without what ends it.
//
// A carriage return and a line feed each end a line by themselves, so the two together leave an empty line between
// them. The last line needs no end. The lines are views of `text`. Time is linear in it.
template <class Visit>
void ForEachLine(ConstData text, Visit visit) {
    auto ends_line = [](unsigned char byte) { return byte == '\r' || byte == '\n'; };
    for (auto begin = text.begin(); begin != text.end();) {
        auto end = std::find_if(begin, text.end(), ends_line);
        visit(ConstData(begin, end));
        begin = end == text.end() ? end : end + 1;
    }
}
