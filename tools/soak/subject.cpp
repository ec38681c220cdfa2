#include "tools/soak/subject.h"

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>

namespace tools {

namespace {

std::string MakeDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "soak.XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary directory");
    return name;
}

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
    : directory_(MakeDirectory()),
      client_(Prepare(options, display_), directory_ + "/base", options.seed),
      user_(display_.Name(), options.seed) {}

Subject::~Subject() {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
}

void Subject::Live(Milliseconds span) {
    auto const end = Clock::now() + span;
    while (Clock::now() < end && client_.Program().WaitForEnd(Milliseconds(0)) == "running") {
        if (client_.Roll(3) > 0) client_.SendAnything();
        for (int left = client_.Roll(6); left > 0; --left) user_.DoAnything();
        std::this_thread::sleep_for(Milliseconds(client_.Roll(200)));
    }
}

std::string Subject::WaitForEnd(Milliseconds limit) {
    std::string const ending = client_.Program().WaitForEnd(limit);
    client_.TakeAnswers();
    return ending;
}

}  // namespace tools
