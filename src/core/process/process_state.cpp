#include "core/process/process_state.h"

#include "channel/unix_pipe.h"
#include "core/process/x_connection.h"

UIMessageQueue& readQ = *new UIMessageQueue;
UIMessageQueue& writeQ = *new UIMessageQueue;
UnixPipe* client_pipe = nullptr;
PendingActions& actions = *new PendingActions;
FileLocation& m_baseDirectory = *new FileLocation;
Instant m_postponedTo{0};
TimeInterval m_remindInterval{0};
bool m_snoozable = true;
bool initialized = false;
bool inQuietMode = false;
bool international = false;

_XtAppStruct* app_context = nullptr;
_XDisplay* display = nullptr;
_WidgetRec* qenHidden = nullptr;

bool ClientIsGone() {
    return client_pipe && client_pipe->Killed();
}
