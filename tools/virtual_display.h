#pragma once

#include <memory>
#include <string>

#include "tools/child_process.h"

namespace tools {

// An X server without a screen, for one test or one demonstration. It dies with the object.
class VirtualDisplay {
  public:
    // Of so many pixels. Returns once the server accepts connections; throws std::runtime_error when it cannot be started.
    explicit VirtualDisplay(std::string const& size = "1280x1024");

    // As in DISPLAY.
    std::string const& Name() const { return name_; }

    // Starts openbox and returns once it manages the windows. Another manager may be named; that one comes when it comes.
    void StartWindowManager(std::string const& program = "openbox");

    // Ends the server as a crash would.
    void Kill();

  private:
    PipeEnds announcement_;
    ChildProcess server_;
    std::string name_;
    PipeEnds manager_announcement_;
    std::unique_ptr<ChildProcess> window_manager_;
};

}  // namespace tools
