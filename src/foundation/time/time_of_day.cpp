#include "foundation/time/time_of_day.h"

void TimeOfDay::SetSecondOfDay(long long seconds) {
    auto const rest = static_cast<int>(seconds % kSecondsInDay);
    int const wrapped = rest < 0 ? rest + kSecondsInDay : rest;
    hour = static_cast<unsigned char>(wrapped / 3'600);
    minute = static_cast<unsigned char>(wrapped / 60 % 60);
    second = static_cast<unsigned char>(wrapped % 60);
}

TimeOfDay& TimeOfDay::operator+=(long long seconds) {
    SetSecondOfDay(SecondOfDay() + seconds % kSecondsInDay);
    return *this;
}

TimeOfDay& TimeOfDay::operator-=(long long seconds) {
    SetSecondOfDay(SecondOfDay() - seconds % kSecondsInDay);
    return *this;
}
