#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "channel/ui_message_queue.h"
#include "foundation/files/file_location.h"
#include "foundation/time/instant.h"
#include "messages/client_requests.h"

// The action requests that the client offers and the user has not yet answered, in arrival order. Main thread only.
//
// An ID may stand in it more than once; looking one up finds the first. Each request keeps the place, a number, that it
// was given when it came: whatever joins or leaves, nobody moves. What is done to one request takes time that grows with
// the logarithm of their number.
class PendingActions {
    using Place = std::uint64_t;
    using Requests = std::map<Place, ActionRequest>;

  public:
    // Walks the requests; valid until the one that it stands at leaves.
    class Iterator : public Requests::const_iterator {
      public:
        using value_type = ActionRequest;
        using pointer = ActionRequest const*;
        using reference = ActionRequest const&;

        Iterator(Requests::const_iterator place) : Requests::const_iterator(place) {}
        reference operator*() const { return Requests::const_iterator::operator*().second; }
        pointer operator->() const { return &**this; }
    };

    Iterator begin() const { return requests_.begin(); }
    Iterator end() const { return requests_.end(); }
    std::size_t size() const { return requests_.size(); }
    bool empty() const { return requests_.empty(); }

    // The first request with this ID, or end().
    Iterator Find(unsigned long long id) const;
    // The same, or null. Valid until it leaves.
    ActionRequest const* FindAction(unsigned long long id) const;
    // Copies of all of them.
    std::vector<ActionRequest> Copies() const { return {begin(), end()}; }

    void Append(ActionRequest request);
    // Returns the one behind it.
    Iterator Erase(Iterator request);
    // Erases the requests for which `leaves` is true.
    template <class Leaves>
    void EraseIf(Leaves leaves);
    void Clear();

    // Where the take-all in progress goes on: at the first action that it has not yet come to, or end(). Null while no
    // take-all is in progress, and after Clear().
    std::optional<Iterator> TakeAllCursor() const;
    // Puts it behind the action that is being asked about.
    void SetTakeAllCursor(Iterator asked);
    void EndTakeAll() { take_all_asked_.reset(); }

  private:
    Requests requests_;
    std::set<std::pair<unsigned long long, Place>> places_;  // By ID.
    Place next_place_ = 0;
    std::optional<Place> take_all_asked_;
};

template <class Leaves>
void PendingActions::EraseIf(Leaves leaves) {
    for (auto request = begin(); request != end();) request = leaves(*request) ? Erase(request) : std::next(request);
}

class UnixPipe;

// The state that the whole process shares. Main thread only, but for the two message queues, which lock themselves.
//
// Nothing here is ever destroyed: the pipe threads still run while the process exits.

// Messages from the client, filled by the pipe's reader thread, and to the client, drained by its writer thread.
extern UIMessageQueue& readQ;
extern UIMessageQueue& writeQ;

// The one connection to the client; null until `main` has made it.
extern UnixPipe* client_pipe;
// Whether the client has gone away or a pipe thread has failed.
bool ClientIsGone();

extern PendingActions& actions;
// What the user is being asked to confirm, as it was when the question was put: from then until the answer is carried
// out, which is in a later tick than the press. Meanwhile nothing else is decided.
extern std::optional<ActionRequest>& m_askedAbout;

// Where the support files are kept, an absolute directory; empty until the client names it.
extern FileLocation& m_baseDirectory;
// The action request dialog does not come back by itself before this time.
extern Instant m_postponedTo;
// The current snooze interval, which the dialog proposes.
extern TimeInterval m_remindInterval;
// Whether the user may snooze.
extern bool m_snoozable;
// The client's first message has been applied.
extern bool initialized;
// The client has declared a period in which nothing is to be decided.
extern bool inQuietMode;
// Text depends on the locale.
extern bool international;

struct _WidgetRec;
struct _XDisplay;
struct _XtAppStruct;

// The process's one connection to a display. Both are null until the X application is set up. Main thread only.
extern _XtAppStruct* app_context;
extern _XDisplay* display;

// The hidden shell through which other programs on the display ask for the action request dialog; null before the first
// tick.
extern _WidgetRec* qenHidden;
