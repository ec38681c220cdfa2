#pragma once

#include <functional>

#include "dialogs/toolkit/widgets.h"

union _XEvent;

// Where the toolkit calls back into the program. Every procedure registered here runs behind a boundary that swallows
// exceptions: one that crossed the toolkit's frames would leave it believing that it still dispatches. Main thread only.
//
// A procedure registered on a widget is owned by the widget and dropped with it.

// Runs `body` when the button is pressed.
void OnPressed(Widget button, std::function<void()> body);

// Runs `body` with the index of the row when the list notifies a choice.
void OnChosen(Widget list, std::function<void(int row)> body);

// Runs `body` for every event of the mask (X.h) that the widget's window gets; a mask of none stands for the events that
// have no mask, client messages among them.
void OnEvents(Widget widget, long mask, std::function<void(_XEvent const& event)> body);

// Runs `body` for every event of this type, of whichever widget, before the toolkit has it; what `body` answers true to,
// the toolkit never sees. Once a type and display.
using EventFilter = bool (*)(_XEvent const& event);
void BeforeDispatch(int event_type, EventFilter body);

// Runs `body` every `milliseconds`, counted from the end of the run before, whatever the run throws. When the wall clock
// is set back meanwhile, the next run comes after twice that time at the latest.
void RunEvery(unsigned long milliseconds, void (*body)());

// The body of an action: the widget whose translation named it and the event that matched.
using ActionBody = void (*)(Widget widget, _XEvent const& event);

// Registers an action of the application under `name`, a literal. Once a name and process.
template <ActionBody body>
void RegisterAction(char const* name);

// The boundary itself, for the rare procedure that the toolkit calls without registration above.
template <class F>
void Guarded(F&& body) noexcept {
    try {
        body();
    } catch (...) {
        // The failure has ended what the body was doing; the next event or tick starts afresh.
    }
}

// What RegisterAction is made of.
using ActionProcedure = void (*)(Widget, _XEvent*, char**, unsigned int*);
void AddAction(char const* name, ActionProcedure procedure);

template <ActionBody body>
void RegisterAction(char const* name) {
    AddAction(name,
              [](Widget widget, _XEvent* event, char**, unsigned int*) { Guarded([=] { body(widget, *event); }); });
}
