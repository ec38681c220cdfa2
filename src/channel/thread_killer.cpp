#include "channel/thread_killer.h"

std::atomic<bool> ThreadKiller::m_kill = false;
UnixPlatform::Event& ThreadKiller::m_Event = *new UnixPlatform::Event;
