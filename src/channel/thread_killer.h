#pragma once

#include <atomic>

#include "channel/event.h"

// The process-wide wish that service threads end. The pipe loops look at the flag on every pass; nothing in this
// process sets it.
//
// Threads may look while the process exits, so neither member is ever destroyed.
class ThreadKiller {
  public:
    static std::atomic<bool> m_kill;
    static UnixPlatform::Event& m_Event;
};
