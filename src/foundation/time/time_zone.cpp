#include "foundation/time/time_zone.h"

#include "foundation/time/local_clock.h"

TimeZone TimeZone::Local() {
    return ReadLocalClock().Zone();
}
