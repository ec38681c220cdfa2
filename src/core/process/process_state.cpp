#include "core/process/process_state.h"

#include "channel/unix_pipe.h"
#include "foundation/base/never_destroyed.h"

std::size_t PendingActions::Find(unsigned long long id) const {
    auto found = std::find_if(begin(), end(), [id](ActionRequest const& request) { return request.id == id; });
    return static_cast<std::size_t>(found - begin());
}

ActionRequest const* PendingActions::FindAction(unsigned long long id) const {
    auto position = Find(id);
    return position < size() ? &requests_[position] : nullptr;
}

void PendingActions::Erase(std::size_t position) {
    requests_.erase(begin() + static_cast<std::ptrdiff_t>(position));
    if (take_all_cursor_ && position < *take_all_cursor_) --*take_all_cursor_;
}

void PendingActions::Clear() {
    requests_.clear();
    take_all_cursor_.reset();
}

UIMessageQueue& readQ = NeverDestroyed<UIMessageQueue>();
UIMessageQueue& writeQ = NeverDestroyed<UIMessageQueue>();
UnixPipe* client_pipe = nullptr;
PendingActions& actions = NeverDestroyed<PendingActions>();
std::optional<ActionRequest>& m_askedAbout = NeverDestroyed<std::optional<ActionRequest>>();
FileLocation& m_baseDirectory = NeverDestroyed<FileLocation>();
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
