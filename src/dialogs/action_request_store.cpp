#include "dialogs/action_request_store.h"

ActionRequest const& ActionRequestStore::GetAction(unsigned long long const& id) const {
    auto found = requests_.find(id);
    if (found == requests_.end()) throw NoSuchActionRequestID();
    return found->second;
}

void ActionRequestStore::RemoveAction(unsigned long long const& id) {
    if (!HasAction(id)) throw NoSuchActionRequestID();
    requests_.erase(id);
}

void ActionRequestStore::UpdateActions(std::span<ActionRequest const> requests) {
    if (requests.empty()) return;
    Instant const limit = Instant::Now() + kNearDeadline;
    for (auto const& request : requests) {
        ActionRequest& stored = requests_[request.id];
        stored = request;
        auto const deadline = stored.Deadline();
        if (stored.force_run && deadline && limit > *deadline) stored.deadline = TimeObject(limit, TimeZone());
    }
}
