#pragma once

#include <cstdlib>

// For tests: sets the local zone of the process, in the form of the TZ variable, until the end of the scope. Threads
// must not read the local time meanwhile.
class ScopedLocalZone {
  public:
    explicit ScopedLocalZone(char const* zone) { setenv("TZ", zone, 1); }
    ~ScopedLocalZone() { unsetenv("TZ"); }
    ScopedLocalZone(ScopedLocalZone const&) = delete;
    ScopedLocalZone& operator=(ScopedLocalZone const&) = delete;
};
