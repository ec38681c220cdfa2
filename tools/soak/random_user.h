#pragma once

#include <string>
#include <vector>

#include "tools/display_driver.h"
#include "tools/soak/dice.h"

namespace tools {

// Somebody who presses the mouse anywhere on a program's windows, and what else may befall these from outside.
//
// Each function does nothing while there is no window for it.
class RandomUser {
  public:
    RandomUser(std::string const& display, unsigned seed) : driver_(display), dice_(seed) {}

    DisplayDriver& Screen() { return driver_; }
    // Whether the program has come to the display, its windows shown or not.
    bool SeesProgram() { return driver_.FindHiddenWindow() != None; }
    bool SeesDialogs() { return !Look().shells.empty(); }
    void ClickAnywhere();
    // A click, or what another program sends to bring the action requests up.
    void DoAnything();

    // As the window manager does when its close button is pressed.
    void CloseAWindow();
    // As only a hostile program does.
    void DestroyAWindow();
    void KillTheConnection();

  private:
    struct Windows {
        std::vector<Window> shells, innermost;
    };

    // Those of the program that are on the screen.
    Windows Look();
    // 0 of none.
    Window AnyOf(std::vector<Window> const& windows) { return windows.empty() ? None : dice_.AnyOf(windows); }

    DisplayDriver driver_;
    Dice dice_;
};

}  // namespace tools
