#pragma once

#include <set>

#include "dialogs/action_request_store.h"
#include "foundation/text/auto_ustring.h"

// The paragraph that tells what taking actions involves: work to save, a restart or shutdown, and how the deadline
// stands. Empty when there is nothing to tell. Main thread only; throws what the formatter throws.
//
// The translations of the sentences are looked up once a family (action_sentences.h), when the first summary of it is
// made, and kept: the translation files must be loaded before.

AutoUString<UTF8> ActionSummary(ActionRequest const& action);

// Of the actions of these IDs, as the pending ones (`pending`) or as a selection of them. The deadline is the earliest, and
// whether it is forced is said by the action that has it, the one of the lowest ID among equals. Throws
// NoSuchActionRequestID for an ID that is not in the store.
AutoUString<UTF8> ActionSummary(std::set<unsigned long long> const& ids, ActionRequestStore const& store, bool pending);
