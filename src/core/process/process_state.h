#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "channel/ui_message_queue.h"
#include "foundation/files/file_location.h"
#include "foundation/time/instant.h"
#include "messages/client_requests.h"

// The action requests that the client offers and the user has not yet answered, in arrival order. Main thread only.
//
// An ID may stand in it more than once; looking one up finds the first.
class PendingActions {
  public:
    using Iterator = std::vector<ActionRequest>::const_iterator;

    Iterator begin() const { return requests_.begin(); }
    Iterator end() const { return requests_.end(); }
    std::size_t size() const { return requests_.size(); }
    bool empty() const { return requests_.empty(); }
    ActionRequest const& operator[](std::size_t position) const { return requests_[position]; }

    // The position of the first request with this ID, or size() when there is none.
    std::size_t Find(unsigned long long id) const;
    // That request itself, or null. Valid until the list changes.
    ActionRequest const* FindAction(unsigned long long id) const;
    // All of them. Valid until the list changes.
    std::span<ActionRequest const> Requests() const { return requests_; }

    void Append(ActionRequest request) { requests_.push_back(std::move(request)); }
    void Erase(std::size_t position);
    // Erases the requests for which `leaves` is true; it may be asked twice about each. Linear in the list.
    template <class Leaves>
    void EraseIf(Leaves leaves);
    void Clear();

    // Where the take-all in progress goes on: at the first action that it has not yet come to, at most size(). It stays
    // in front of that action whatever leaves. Null while no take-all is in progress, and after Clear().
    std::optional<std::size_t> TakeAllCursor() const { return take_all_cursor_; }
    void SetTakeAllCursor(std::optional<std::size_t> position) { take_all_cursor_ = position; }

  private:
    std::vector<ActionRequest> requests_;
    std::optional<std::size_t> take_all_cursor_;
};

template <class Leaves>
void PendingActions::EraseIf(Leaves leaves) {
    if (take_all_cursor_) {
        auto const passed = begin() + static_cast<std::ptrdiff_t>(*take_all_cursor_);
        *take_all_cursor_ -= static_cast<std::size_t>(std::count_if(begin(), passed, leaves));
    }
    std::erase_if(requests_, leaves);
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
