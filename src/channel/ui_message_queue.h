#pragma once

#include <cstdint>
#include <utility>

#include "channel/access_lock.h"
#include "foundation/base/fifo_queue.h"
#include "foundation/text/auto_ustring.h"

// One message between client and process: a kind and a text, which is a whole XML document in UTF-8.
//
// The kind travels between threads with the message but never goes into a frame; every message has kind 0. Copying a
// message copies its text, so two threads never share one.
class UIMessage {
  public:
    UIMessage() = default;
    explicit UIMessage(CopiedUString<UTF8> text, std::uint32_t kind = 0) : kind_(kind), text_(std::move(text)) {}

    std::uint32_t Kind() const { return kind_; }

    // Valid as long as the message is neither assigned to nor destroyed. What the client sends is taken as it comes, and
    // need not be valid UTF-8.
    UStringRef<UTF8> Text() const { return text_; }

  private:
    std::uint32_t kind_ = 0;
    CopiedUString<UTF8> text_;
};

// The messages that one thread hands to another, first in first out.
//
// Any thread may call; each call holds the lock for one append, one exchange or one look. A queue that a pipe thread
// serves must outlive that thread, which may run until the process is gone: such a queue is never destroyed.
class UIMessageQueue {
  public:
    // Appends a copy of `message`, or takes over one that its owner gives away.
    void WriteMessage(UIMessage const& message) { WriteMessage(UIMessage(message)); }
    void WriteMessage(UIMessage&& message);

    // Exchanges the whole content with `out`, which the caller passes empty: it receives every message queued so far,
    // in order. The time under the lock does not grow with their number.
    void ReadMessages(FiFoQueue<UIMessage>& out);

    // Whether nothing waits at this moment.
    bool IsEmpty() const;

  private:
    mutable AccessLock lock_;
    FiFoQueue<UIMessage> messages_;
};
