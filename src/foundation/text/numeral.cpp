#include "foundation/text/numeral.h"

void Numeral::Render(unsigned long long magnitude, unsigned int base) {
    if (base < 2 || base > 36) throw IllegalNumeralBase();
    do {
        Prepend(Digit(static_cast<unsigned int>(magnitude % base)));
        magnitude /= base;
    } while (magnitude);
}

void Numeral::PadTo(unsigned int digits) {
    if (digits >= end) throw ConstDataCapacityExceeded();
    while (end - first_ < digits) Prepend('0');
}

void Numeral::Prepend(unsigned char digit) {
    text_[--first_] = digit;
    text_[first_ - 1] = sign_;
}
