#pragma once

#include <map>
#include <span>

#include "foundation/base/debuggable_exception.h"
#include "messages/client_requests.h"

// No action of this ID is in the store.
class NoSuchActionRequestID : public DebuggableException {};

// Copies of action requests by ID, in ascending order of the IDs, for describing a set of them. Main thread only.
class ActionRequestStore {
  public:
    bool HasAction(unsigned long long const& id) const { return requests_.contains(id); }
    // Throws NoSuchActionRequestID. The reference is good until the action is removed; an update changes it in place.
    ActionRequest const& GetAction(unsigned long long const& id) const;
    // Throws NoSuchActionRequestID.
    void RemoveAction(unsigned long long const& id);

    // Adds the requests, each in place of the one of its ID; others stay. A forced action never shows a deadline closer
    // than five minutes from now: a nearer or past one is stored as that moment.
    void UpdateActions(std::span<ActionRequest const> requests);

  private:
    std::map<unsigned long long, ActionRequest> requests_;
};
