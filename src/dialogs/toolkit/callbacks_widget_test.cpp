#include "dialogs/toolkit/callbacks.h"

#include <X11/Intrinsic.h>
#include <sys/time.h>

#include <ctime>

#include "tests/support/dialog_display.h"
#include "tools/waiting.h"

#undef Bool
#undef None
#undef Status
#include <gtest/gtest.h>

// The wall clock as the toolkit reads it, set back by so many seconds.
static time_t set_back = 0;
extern "C" int gettimeofday(timeval* now, void*) noexcept {
    timespec clock;
    clock_gettime(CLOCK_REALTIME, &clock);
    *now = {clock.tv_sec - set_back, clock.tv_nsec / 1000};
    return 0;
}

TEST(RunEvery, GoesOnWhenTheClockIsSetBack) {
    OpenDialogDisplay();
    static int runs = 0;
    RunEvery(20, [] { ++runs; });
    for (int hours : {0, 1, 2, 0}) {
        set_back = hours * 3600;
        int const before = runs;
        EXPECT_TRUE(tools::WaitUntil(std::chrono::seconds(10), [&] {
            while (XtAppPending(app_context)) XtAppProcessEvent(app_context, XtIMAll);
            return runs > before + 1;
        }));
    }
    int const before = runs;
    auto const begin = tools::Clock::now();
    while (tools::Clock::now() - begin < tools::Milliseconds(400)) XtAppProcessEvent(app_context, XtIMAll);
    EXPECT_LE(runs - before, (tools::Clock::now() - begin) / tools::Milliseconds(20) + 1) << "once each time";
}
