#include "tools/soak/random_user.h"

#include <X11/extensions/XTest.h>

#include <stdexcept>

namespace tools {

RandomUser::RandomUser(std::string const& display, unsigned seed)
    : driver_(display), display_(XOpenDisplay(display.c_str())), random_(seed) {
    if (!display_) throw std::runtime_error("cannot open the display " + display);
    IgnoreErrors(display_.get());
}

RandomUser::Windows RandomUser::Look() {
    Windows windows;
    XID const owner = Hidden() & ~BitsWithinProgram(display_.get());
    std::vector<std::pair<Window, bool>> open{{DefaultRootWindow(display_.get()), false}};
    while (owner != None && !open.empty()) {
        auto const [window, inside] = open.back();
        open.pop_back();
        bool const own = (window & owner) == owner && IsOnScreen(display_.get(), window);
        auto const children = ChildrenOf(display_.get(), window);
        if (own && !inside) windows.shells.push_back(window);
        if (own && children.empty()) windows.innermost.push_back(window);
        for (Window child : children) open.emplace_back(child, own);
    }
    return windows;
}

Window RandomUser::AnyOf(std::vector<Window> const& windows) {
    return windows.empty() ? None : windows[static_cast<size_t>(Roll(static_cast<int>(windows.size())))];
}

void RandomUser::DoAnything() {
    if (Roll(20) == 0) driver_.SendText(Hidden(), "open");
    ClickAnywhere();
}

void RandomUser::ClickAnywhere() {
    Area const area = VisibleArea(display_.get(), AnyOf(Look().innermost));
    if (area.width <= 0 || area.height <= 0) return;
    int const x = area.x + Roll(area.width), y = area.y + Roll(area.height);
    XTestFakeMotionEvent(display_.get(), DefaultScreen(display_.get()), x, y, CurrentTime);
    XTestFakeButtonEvent(display_.get(), Button1, True, CurrentTime);
    XTestFakeButtonEvent(display_.get(), Button1, False, CurrentTime);
    XFlush(display_.get());
}

void RandomUser::CloseAWindow() {
    if (Window const window = AnyOf(Look().shells)) driver_.RequestClose(window);
}

void RandomUser::DestroyAWindow() {
    if (Window const window = AnyOf(Look().innermost)) XDestroyWindow(display_.get(), window);
    XFlush(display_.get());
}

void RandomUser::KillTheConnection() {
    if (Window const window = Hidden()) XKillClient(display_.get(), window);
    XFlush(display_.get());
}

}  // namespace tools
