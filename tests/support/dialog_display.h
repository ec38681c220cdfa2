#pragma once

#include <X11/Intrinsic.h>

#include <clocale>

#include "core/process/process_state.h"
#include "dialogs/toolkit/dialog_window.h"
#include "tools/virtual_display.h"

// Connects the dialogs, in process, to a virtual display that lasts as long as the process; once, however often it is
// called.
inline void OpenDialogDisplay() {
    static tools::VirtualDisplay server;
    if (display) return;
    std::setlocale(LC_ALL, "C.UTF-8");
    XtToolkitInitialize();
    app_context = XtCreateApplicationContext();
    int count = 0;
    display = XtOpenDisplay(app_context, server.Name().c_str(), "test", "XQENClientUI", nullptr, 0, &count, nullptr);
    RegisterDialogActions();
}
