#pragma once

#include "channel/access_lock.h"
#include "channel/ui_message.h"
#include "foundation/base/fifo_queue.h"

// The messages that one thread hands to another, first in first out.
//
// Any thread may call; each call holds the lock for one append, one exchange or one look. A queue that a pipe thread
// serves must outlive that thread, which may run until the process is gone: such a queue is never destroyed.
class UIMessageQueue {
  public:
    // Appends a copy of `message`.
    void WriteMessage(UIMessage const& message);

    // Exchanges the whole content with `out`, which the caller passes empty: it receives every message queued so far,
    // in order. The time under the lock does not grow with their number.
    void ReadMessages(FiFoQueue<UIMessage>& out);

    // Whether nothing waits at this moment.
    bool IsEmpty() const;

  private:
    mutable AccessLock lock_;
    FiFoQueue<UIMessage> messages_;
};
