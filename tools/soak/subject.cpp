#include "tools/soak/subject.h"

namespace tools {

namespace {

// What AddressSanitizer keeps back of the freed memory is little here, so that growth is the program's own.
Launch Prepare(SoakOptions const& options, VirtualDisplay& display) {
    if (options.window_manager) display.StartWindowManager();
    return {options.program,
            {},
            {{"DISPLAY", display.Name()},
             {"LC_ALL", "C.UTF-8"},
             {"ASAN_OPTIONS", "malloc_context_size=2:quarantine_size_mb=4"},
             {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAKS_OF_THE_TOOLKIT}}};
}

}  // namespace

Subject::Subject(SoakOptions const& options)
    : client(Prepare(options, display), directory.Path() / "base", options.seed), user(display.Name(), options.seed) {}

void Subject::Live(Milliseconds span) {
    auto const end = Clock::now() + span;
    while (Clock::now() < end && client.Program().WaitForEnd(Milliseconds(0)) == "running") {
        if (client.dice.Roll(3) > 0) client.SendAnything();
        for (int left = client.dice.Roll(6); left > 0; --left) user.DoAnything();
        std::this_thread::sleep_for(Milliseconds(client.dice.Roll(200)));
    }
}

std::string Subject::WaitForEnd(Milliseconds limit) {
    std::string const ending = client.Program().WaitForEnd(limit);
    client.TakeAnswers();
    return ending;
}

}  // namespace tools
