#include "core/process/ui_command.h"

#include <utility>

#include "foundation/base/never_destroyed.h"

UICommandQueue& uiCommandQ = NeverDestroyed<UICommandQueue>();

void UICommandQueue::WriteMessage(std::unique_ptr<UICommand> command) {
    AccessLocker locker(lock_);
    commands_.Append(std::move(command));
}

void UICommandQueue::ReadMessages(FiFoQueue<std::unique_ptr<UICommand>>& out) {
    AccessLocker locker(lock_);
    commands_.Swap(out);
}

void QueueCommand(UICommandType type, unsigned long long actionID, int minutes, long long deadlineSeconds) {
    auto const seconds = static_cast<std::uint32_t>(deadlineSeconds);
    uiCommandQ.WriteMessage(std::make_unique<UICommand>(type, actionID, minutes, seconds));
}
