#pragma once

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tools/display_driver.h"
#include "tools/soak/resources.h"

namespace tools {

// Somebody who presses the mouse anywhere on a program's windows, and what else may befall these from outside.
//
// Each function does nothing while there is no window for it.
class RandomUser {
  public:
    RandomUser(std::string const& display, unsigned seed);

    // Whether the program has come to the display, its windows shown or not.
    bool SeesProgram() { return Hidden() != None; }
    bool SeesDialogs() { return !Look().shells.empty(); }
    void ClickAnywhere();
    // A click, or what another program sends to bring the action requests up.
    void DoAnything();

    // As the window manager does when its close button is pressed.
    void CloseAWindow();
    // As only a hostile program does.
    void DestroyAWindow();
    void KillTheConnection();

    Resources ResourcesOf(pid_t pid) { return tools::ResourcesOf(pid, display_.get(), Hidden()); }

  private:
    struct Closer {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };
    struct Windows {
        std::vector<Window> shells, innermost;
    };

    Window Hidden() { return driver_.FindWindow("QENClientUIHiddenWindow"); }
    // Those of the program that are on the screen.
    Windows Look();
    // 0 of none.
    Window AnyOf(std::vector<Window> const& windows);
    int Roll(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    DisplayDriver driver_;
    std::unique_ptr<Display, Closer> display_;
    std::mt19937 random_;
};

}  // namespace tools
