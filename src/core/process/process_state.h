#pragma once

#include "channel/ui_message_queue.h"
#include "core/process/pending_actions.h"
#include "foundation/files/file_location.h"
#include "foundation/time/instant.h"

class UnixPipe;

// The state that the whole process shares. Main thread only, but for the two message queues, which lock themselves.
//
// Nothing here is ever destroyed: the pipe threads still run while the process exits.

// Messages from the client, filled by the pipe's reader thread, and to the client, drained by its writer thread.
extern UIMessageQueue& readQ;
extern UIMessageQueue& writeQ;

// The one connection to the client; null until `main` has made it.
extern UnixPipe* client_pipe;
// Whether the client has gone away or a pipe thread has failed.
bool ClientIsGone();

extern PendingActions& actions;

// Where the support files are kept, an absolute directory; empty until the client names it.
extern FileLocation& m_baseDirectory;
// The action request dialog does not come back by itself before this time.
extern Instant m_postponedTo;
// The current snooze interval, which the dialog proposes.
extern TimeInterval m_remindInterval;
// Whether the user may snooze.
extern bool m_snoozable;
// The client's first message has been applied.
extern bool initialized;
// The client has declared a period in which nothing is to be decided.
extern bool inQuietMode;
// Text depends on the locale.
extern bool international;
