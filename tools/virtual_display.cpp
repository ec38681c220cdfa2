#include "tools/virtual_display.h"

#include <signal.h>
#include <unistd.h>

#include <stdexcept>

namespace tools {

namespace {

// Reads what the program at the other end announces on a line of its own; nothing when it ends before.
std::string ReadLine(Descriptor const& pipe) {
    std::string line;
    char letter = 0;
    while (read(pipe.Get(), &letter, 1) == 1) {
        if (letter == '\n') return line;
        line += letter;
    }
    return {};
}

}  // namespace

VirtualDisplay::VirtualDisplay(std::string const& size)
    : announcement_(MakePipe()),
      server_({"Xvfb", {"-displayfd", "1", "-noreset", "-screen", "0", size + "x24"}}, -1,
              announcement_.writing.Get()) {
    announcement_.writing.Close();
    name_ = ":" + ReadLine(announcement_.reading);
    if (name_ == ":") throw std::runtime_error("Xvfb does not start");
}

void VirtualDisplay::StartWindowManager(std::string const& program) {
    // Its properties on the root window appear before it manages windows; what it starts itself comes after.
    std::string const ready = "managing-windows";
    manager_announcement_ = MakePipe();
    bool const announces = program == "openbox";
    Launch launch{program, {}, {{"DISPLAY", name_}}};
    if (announces) launch.arguments = {"--startup", "echo " + ready};
    window_manager_ = std::make_unique<ChildProcess>(launch, -1, manager_announcement_.writing.Get());
    manager_announcement_.writing.Close();
    std::string line;
    while (announces && line != ready) {
        line = ReadLine(manager_announcement_.reading);
        if (line.empty()) throw std::runtime_error("openbox does not start");
    }
}

void VirtualDisplay::Kill() {
    server_.Signal(SIGKILL);
    server_.WaitForEnd(std::chrono::seconds(10));
}

}  // namespace tools
