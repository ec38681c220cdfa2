#pragma once

#include <cstdint>
#include <memory>

#include "channel/access_lock.h"
#include "foundation/base/fifo_queue.h"

// What the user has decided in a dialog. The numbers are fixed: a type outside 0 to 9 is ignored.
enum class UICommandType : std::uint32_t {
    TakeAll = 0,
    ShowDetails = 1,
    DetailsClosed = 2,
    Cancel = 3,
    Take = 4,
    Snooze = 5,
    ConfirmationAccepted = 6,
    ConfirmationDeclined = 7,
    QuietNoticeClosed = 8,
    Show = 9,
};

// One decision on its way from a dialog to the next tick.
class UICommand {
  public:
    UICommand(UICommandType type, unsigned long long action_id, std::int32_t minutes, std::uint32_t deadline_seconds)
        : type_(type), action_id_(action_id), minutes_(minutes), deadline_seconds_(deadline_seconds) {}
    virtual ~UICommand() = default;

    UICommandType Type() const { return type_; }
    // 0 where no action is meant.
    unsigned long long ActionID() const { return action_id_; }
    // Of a snooze.
    std::int32_t Minutes() const { return minutes_; }
    // Of a snooze: the earliest deadline in seconds since 1970.
    std::uint32_t DeadlineSeconds() const { return deadline_seconds_; }

  private:
    UICommandType type_;
    unsigned long long action_id_;
    std::int32_t minutes_;
    std::uint32_t deadline_seconds_;
};

// The decisions that wait for the next tick, first in first out. Any thread may call; each call holds the lock for one
// append or one exchange.
class UICommandQueue {
  public:
    void WriteMessage(std::unique_ptr<UICommand> command);

    // Exchanges the whole content with `out`, which the caller passes empty.
    void ReadMessages(FiFoQueue<std::unique_ptr<UICommand>>& out);

  private:
    AccessLock lock_;
    FiFoQueue<std::unique_ptr<UICommand>> commands_;
};

extern UICommandQueue& uiCommandQ;

// Appends a command to `uiCommandQ`; any thread may call. Only the low 32 bits of `deadlineSeconds` are kept, and read
// back as an unsigned number: that is meant, the field has that width.
void QueueCommand(UICommandType type, unsigned long long actionID, int minutes, long long deadlineSeconds);
