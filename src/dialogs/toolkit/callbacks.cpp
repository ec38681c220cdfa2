#include "dialogs/toolkit/callbacks.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>
#include <sys/timerfd.h>

#include <array>
#include <memory>

#include "core/process/process_state.h"

namespace {

// The body as what the toolkit hands to a callback, owned by the widget, which frees it when it is destroyed.
template <class... Values>
auto* OwnedBy(Widget widget, std::function<void(Values...)> body) {
    using Body = std::function<void(Values...)>;
    auto owned = std::make_unique<Body>(std::move(body));
    auto drop = [](Widget, XtPointer data, XtPointer) { delete static_cast<Body*>(data); };
    XtAddCallback(widget, XtNdestroyCallback, drop, owned.get());
    return owned.release();
}

struct Filter {
    EventFilter body = nullptr;
    XtEventDispatchProc next = nullptr;
};
std::array<Filter, LASTEvent> filters;

struct Repetition {
    unsigned long milliseconds;
    void (*body)();
    XtIntervalId next = 0;
    // Readable when the next run is overdue. The toolkit's time-outs go by the wall clock, and one that is set back by
    // an hour would hold them up for that long.
    int overdue = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
};

void RunAgain(XtPointer data, XtIntervalId*);

// Sets the watch anew, which also makes it unreadable. Without a descriptor for it there is none.
void AwaitNextRun(Repetition& repetition) {
    repetition.next = XtAppAddTimeOut(app_context, repetition.milliseconds, RunAgain, &repetition);
    auto const limit = static_cast<long>(2 * repetition.milliseconds);
    itimerspec const once = {{}, {limit / 1000, limit % 1000 * 1'000'000}};
    timerfd_settime(repetition.overdue, 0, &once, nullptr);
}

void RunAgain(XtPointer data, XtIntervalId*) {
    auto* repetition = static_cast<Repetition*>(data);
    Guarded(repetition->body);
    AwaitNextRun(*repetition);
}

void RunOverdue(XtPointer data, int*, XtInputId*) {
    XtRemoveTimeOut(static_cast<Repetition*>(data)->next);
    RunAgain(data, nullptr);
}

}  // namespace

void OnPressed(Widget button, std::function<void()> body) {
    auto call = [](Widget, XtPointer data, XtPointer) { Guarded(*static_cast<std::function<void()>*>(data)); };
    XtAddCallback(button, XtNcallback, call, OwnedBy(button, std::move(body)));
}

void OnChosen(Widget list, std::function<void(int)> body) {
    auto call = [](Widget, XtPointer data, XtPointer chosen) {
        int row = static_cast<XawListReturnStruct*>(chosen)->list_index;
        Guarded([&] { (*static_cast<std::function<void(int)>*>(data))(row); });
    };
    XtAddCallback(list, XtNcallback, call, OwnedBy(list, std::move(body)));
}

void OnEvents(Widget widget, long mask, std::function<void(XEvent const&)> body) {
    auto call = [](Widget, XtPointer data, XEvent* event, Boolean*) {
        Guarded([&] { (*static_cast<std::function<void(XEvent const&)>*>(data))(*event); });
    };
    XtAddEventHandler(widget, static_cast<EventMask>(mask), mask == NoEventMask, call,
                      OwnedBy(widget, std::move(body)));
}

void BeforeDispatch(int event_type, EventFilter body) {
    auto dispatch = [](XEvent* event) -> Boolean {
        auto const& filtered = filters[static_cast<std::size_t>(event->type)];
        bool swallowed = false;
        Guarded([&] { swallowed = filtered.body(*event); });
        return swallowed ? True : filtered.next(event);
    };
    auto& filter = filters[static_cast<std::size_t>(event_type)];
    filter.body = body;
    filter.next = XtSetEventDispatcher(display, event_type, dispatch);
}

void RunEvery(unsigned long milliseconds, void (*body)()) {
    // Lives as long as the process, like the timer.
    auto* repetition = new Repetition{milliseconds, body};
    if (repetition->overdue >= 0)
        XtAppAddInput(app_context, repetition->overdue, reinterpret_cast<XtPointer>(XtInputReadMask), RunOverdue,
                      repetition);
    AwaitNextRun(*repetition);
}

void AddAction(char const* name, ActionProcedure procedure) {
    XtActionsRec action = {const_cast<String>(name), procedure};
    XtAppAddActions(app_context, &action, 1);
}
