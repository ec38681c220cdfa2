#include "channel/millisecond_sleep.h"

#include <chrono>
#include <thread>

void MilliSecondSleep(unsigned milliseconds) {
    using namespace std::chrono;
    if (milliseconds >= 1000) std::this_thread::sleep_for(seconds(milliseconds / 1000));
    std::this_thread::sleep_for(microseconds(milliseconds % 1000 * 1000));
}
