#include "core/process/pending_actions.h"

#include <algorithm>

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
    if (position < take_all_cursor_) --take_all_cursor_;
}

void PendingActions::Erase(std::vector<bool> const& leaving) {
    auto const cursor = leaving.begin() + static_cast<std::ptrdiff_t>(take_all_cursor_);
    take_all_cursor_ -= static_cast<std::size_t>(std::count(leaving.begin(), cursor, true));
    auto position = [this](ActionRequest const& request) { return static_cast<std::size_t>(&request - &requests_[0]); };
    std::erase_if(requests_, [&](ActionRequest const& request) { return leaving[position(request)]; });
}

void PendingActions::Clear() {
    requests_.clear();
    take_all_cursor_ = 0;
}
