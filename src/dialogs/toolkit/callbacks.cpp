#include "dialogs/toolkit/callbacks.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/List.h>

#include <memory>

#include "core/process/x_connection.h"

namespace {

// Hands `closure` to the widget, which frees it when it is destroyed.
template <class Closure>
Closure* OwnedBy(Widget widget, std::unique_ptr<Closure> closure) {
    auto drop = [](Widget, XtPointer data, XtPointer) { delete static_cast<Closure*>(data); };
    XtAddCallback(widget, XtNdestroyCallback, drop, closure.get());
    return closure.release();
}

template <class... Values>
auto* Closure(Widget widget, std::function<void(Values...)> body) {
    return OwnedBy(widget, std::make_unique<std::function<void(Values...)>>(std::move(body)));
}

struct Repetition {
    unsigned long milliseconds;
    void (*body)();
};

void RunAgain(XtPointer data, XtIntervalId*) {
    auto* repetition = static_cast<Repetition*>(data);
    Guarded(repetition->body);
    XtAppAddTimeOut(app_context, repetition->milliseconds, RunAgain, repetition);
}

}  // namespace

void OnPressed(Widget button, std::function<void()> body) {
    auto call = [](Widget, XtPointer data, XtPointer) { Guarded(*static_cast<std::function<void()>*>(data)); };
    XtAddCallback(button, XtNcallback, call, Closure(button, std::move(body)));
}

void OnChosen(Widget list, std::function<void(int)> body) {
    auto call = [](Widget, XtPointer data, XtPointer chosen) {
        int row = static_cast<XawListReturnStruct*>(chosen)->list_index;
        Guarded([&] { (*static_cast<std::function<void(int)>*>(data))(row); });
    };
    XtAddCallback(list, XtNcallback, call, Closure(list, std::move(body)));
}

void OnNonmaskableEvent(Widget widget, std::function<void(XEvent const&)> body) {
    auto call = [](Widget, XtPointer data, XEvent* event, Boolean*) {
        Guarded([&] { (*static_cast<std::function<void(XEvent const&)>*>(data))(*event); });
    };
    XtAddEventHandler(widget, NoEventMask, True, call, Closure(widget, std::move(body)));
}

void RunEvery(unsigned long milliseconds, void (*body)()) {
    // Lives as long as the process, like the timer.
    XtAppAddTimeOut(app_context, milliseconds, RunAgain, new Repetition{milliseconds, body});
}

void AddAction(char const* name, ActionProcedure procedure) {
    XtActionsRec action = {const_cast<String>(name), procedure};
    XtAppAddActions(app_context, &action, 1);
}
