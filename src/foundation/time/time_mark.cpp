#include "foundation/time/time_mark.h"

#include <ctime>

namespace {

TimeInterval RealTimeClock() {
    std::timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return TimeInterval(now.tv_sec * TimeInterval::kSecond + now.tv_nsec / 1'000);
}

}  // namespace

TimeInterval TimeMark::Now() {
    static TimeInterval const first = RealTimeClock();
    return RealTimeClock() - first;
}
