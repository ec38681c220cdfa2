#include <X11/Intrinsic.h>
#include <benchmark/benchmark.h>

#include <string>

#include "core/process/process_state.h"
#include "dialogs/action_request_dialog.h"
#include "tests/support/dialog_display.h"

// The action request dialog on a virtual display.

namespace {

ActionRequest Action(std::int64_t i) {
    ActionRequest action;
    action.id = static_cast<unsigned long long>(i);
    action.SetTitle(("Update the package number " + std::to_string(i)).c_str());
    action.deadline = TimeObject(Instant::Now() + TimeInterval::Minutes(60 + i), TimeZone());
    return action;
}

// One refresh as a tick does it: every text converted, the rows replaced, everything laid out and sent to the server. The
// first action becomes the last, since equal rows are not replaced.
void RefreshOfTheActionRequestDialog(benchmark::State& state) {
    OpenDialogDisplay();
    actions.Clear();
    for (std::int64_t i = 1; i <= state.range(0); ++i) actions.Append(Action(i));
    ShowActionRequestDialog(false, TimeInterval::Minutes(15), true);
    for (auto _ : state) {
        actions.Append(ActionRequest(*actions.begin()));
        actions.Erase(actions.begin());
        UpdateActionRequestDialog();
        RefreshActionRequestDialog();
        XFlush(display);
    }
    HideActionRequestDialog();
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RefreshOfTheActionRequestDialog)
    ->ArgsProduct({{125, 250, 500, 1000}})
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

}  // namespace
