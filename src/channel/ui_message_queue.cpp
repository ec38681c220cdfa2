#include "channel/ui_message_queue.h"

#include <utility>

void UIMessageQueue::WriteMessage(UIMessage&& message) {
    AccessLocker locker(lock_);
    messages_.Append(std::move(message));
}

void UIMessageQueue::ReadMessages(FiFoQueue<UIMessage>& out) {
    AccessLocker locker(lock_);
    messages_.Swap(out);
}

bool UIMessageQueue::IsEmpty() const {
    AccessLocker locker(lock_);
    return messages_.IsEmpty();
}
