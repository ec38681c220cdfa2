#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "channel/ui_message_queue.h"
#include "foundation/files/file_location.h"
#include "foundation/time/instant.h"
#include "messages/client_requests.h"

// The action requests that the client offers and the user has not yet answered, in arrival order. Main thread only.
//
// An ID may stand in it more than once; looking one up finds the first. Erasing keeps the cursor of a take-all in progress
// in front of the same action, whatever is removed meanwhile and by whom.
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

    void Append(ActionRequest const& request) { requests_.push_back(request); }
    void Erase(std::size_t position);
    // Asks `leaves` about each request, in order, and erases those for which it answers true; the list must not change
    // meanwhile. When an answer throws, those before it are erased all the same. Takes time linear in the list.
    template <class Leaves>
    void EraseIf(Leaves leaves);
    void Clear();

    // The first action that the take-all in progress has not yet come to; at most size().
    std::size_t TakeAllCursor() const { return take_all_cursor_; }
    void SetTakeAllCursor(std::size_t position) { take_all_cursor_ = position; }

  private:
    void Erase(std::vector<bool> const& leaving);

    std::vector<ActionRequest> requests_;
    std::size_t take_all_cursor_ = 0;
};

template <class Leaves>
void PendingActions::EraseIf(Leaves leaves) {
    std::vector<bool> leaving(size());
    try {
        for (std::size_t i = 0; i < size(); ++i) leaving[i] = leaves(requests_[i]);
    } catch (...) {
        Erase(leaving);
        throw;
    }
    Erase(leaving);
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

// The process's one connection to a display. Both are null until the X application is set up, and again once the
// process has begun to exit. Main thread only.
extern _XtAppStruct* app_context;
extern _XDisplay* display;

// The hidden shell through which other programs on the display ask for the action request dialog; null before the first
// tick.
extern _WidgetRec* qenHidden;
