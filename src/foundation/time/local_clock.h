#pragma once

#include "foundation/time/time_object.h"

// What a clock on the wall shows now: the local date, time of day and offset from UTC, all three from one reading, so
// that a change of the offset never falls between them. A change of the system's zone is noticed.
TimeObject ReadLocalClock();
