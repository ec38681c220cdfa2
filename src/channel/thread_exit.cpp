#include "channel/thread_exit.h"

#include <vector>

static std::vector<void (*)()>& Routines() {
    static auto& routines = *new std::vector<void (*)()>;
    return routines;
}

void AtThreadExit(void (*routine)()) {
    Routines().push_back(routine);
}

void DoThreadExitRoutines() {
    for (auto routine : Routines()) routine();
}
