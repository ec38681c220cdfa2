#pragma once

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
