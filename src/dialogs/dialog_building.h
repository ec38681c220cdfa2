#pragma once

#include "dialogs/toolkit/widget.h"

// The rule that all dialogs share: one that cannot be built is reported to the client by its name, with error code 2, and
// the process ends with status 0. In practice it is a text that the locale's encoding cannot represent.
[[noreturn]] void ReportUnbuildableDialog(char const* name);

// Runs `build`; whatever it throws ends the process by that rule. Main thread only.
template <class F>
void BuildOrReport(char const* name, F&& build) {
    try {
        build();
    } catch (...) {
        ReportUnbuildableDialog(name);
    }
}
