#include "localisation/format_segment.h"

#include <algorithm>

#include "localisation/format_errors.h"

UFormatIterator::UFormatIterator(UStringRef<UTF8> format) : next_(format.begin()), end_(format.end()) {
    GetNextSegment();
}

UFormatIterator UFormatIterator::End(UStringRef<UTF8> format) {
    UFormatIterator end;
    end.current_ = end.next_ = end.end_ = format.end();
    return end;
}

void UFormatIterator::GetNextSegment() {
    current_ = next_;
    bool variable = current_ != end_ && *current_ == '{';
    auto begin = variable ? current_ + 1 : current_;
    auto stop = std::find(begin, end_, static_cast<UTF8::Unit>(variable ? '}' : '{'));
    if (variable && stop == end_) throw BadFormatStringError();
    segment_ = {variable, {begin, stop}};
    next_ = variable ? stop + 1 : stop;
}
