#include "foundation/time/buffer.h"

#include <algorithm>

#include "foundation/text/numerals.h"

Buffer& Buffer::operator<<(std::string_view text) {
    if (text.size() > room_.size() - size_) throw DataOverflow();
    std::copy(text.begin(), text.end(), room_.begin() + static_cast<std::ptrdiff_t>(size_));
    size_ += text.size();
    return *this;
}

Buffer& Buffer::Number(unsigned long long value, unsigned int minDigits) {
    return *this << MakeAsciiDecimalNumeral64(value, minDigits).AsStringView();
}
