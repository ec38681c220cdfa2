#include "core/process/process_state.h"

#include "channel/unix_pipe.h"
#include "foundation/base/never_destroyed.h"

PendingActions::Iterator PendingActions::Find(unsigned long long id) const {
    auto const first = places_.lower_bound({id, 0});
    return first != places_.end() && first->first == id ? requests_.find(first->second) : requests_.end();
}

ActionRequest const* PendingActions::FindAction(unsigned long long id) const {
    auto const found = Find(id);
    return found == end() ? nullptr : &*found;
}

void PendingActions::Append(ActionRequest request) {
    Place const place = next_place_++;
    places_.emplace(request.id, place);
    requests_.emplace_hint(requests_.end(), place, std::move(request));
}

PendingActions::Iterator PendingActions::Erase(Iterator request) {
    Requests::const_iterator const entry = request;
    places_.erase({entry->second.id, entry->first});
    return Iterator(requests_.erase(entry));
}

void PendingActions::Clear() {
    requests_.clear();
    places_.clear();
    EndTakeAll();
}

std::optional<PendingActions::Iterator> PendingActions::TakeAllCursor() const {
    if (!take_all_asked_) return std::nullopt;
    return requests_.upper_bound(*take_all_asked_);
}

void PendingActions::SetTakeAllCursor(Iterator asked) {
    take_all_asked_ = static_cast<Requests::const_iterator>(asked)->first;
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
