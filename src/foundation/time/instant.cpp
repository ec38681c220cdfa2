#include "foundation/time/instant.h"

#include "foundation/time/local_clock.h"
#include "foundation/time/time_object.h"

Instant::Instant(TimeObject const& time)
    : microseconds_(
          SaturatingMultiply(time.SecondsSinceYear0() - TimeObject::kSecondsBefore1970, TimeInterval::kSecond)) {}

Instant Instant::Now() {
    return Instant(ReadLocalClock());
}
