#pragma once

// Sleeps that long; a signal does not cut the sleep short.
void MilliSecondSleep(unsigned milliseconds);
