#include "tools/soak/random_user.h"

#include <X11/extensions/XRes.h>

namespace tools {

namespace {

// The bits of an X resource's number that say which it is of its program's; the others say whose.
XID BitsWithinProgram(Display* display) {
    int count = 0;
    XResClient* clients = nullptr;
    XResQueryClients(display, &count, &clients);
    XID const mask = count > 0 ? clients[0].resource_mask : 0;
    XFree(clients);
    return mask;
}

}  // namespace

RandomUser::Windows RandomUser::Look() {
    Windows windows;
    Display* const display = driver_.Connection();
    XID const owner = driver_.FindHiddenWindow() & ~BitsWithinProgram(display);
    std::vector<std::pair<Window, bool>> open{{DefaultRootWindow(display), false}};
    while (owner != None && !open.empty()) {
        auto const [window, inside] = open.back();
        open.pop_back();
        bool const own = (window & owner) == owner && IsOnScreen(display, window);
        auto const children = ChildrenOf(display, window);
        if (own && !inside) windows.shells.push_back(window);
        if (own && children.empty()) windows.innermost.push_back(window);
        for (Window child : children) open.emplace_back(child, own);
    }
    return windows;
}

void RandomUser::DoAnything() {
    if (dice_.Roll(20) == 0 && SeesProgram()) driver_.SendOpen();
    ClickAnywhere();
}

void RandomUser::ClickAnywhere() {
    Area const area = VisibleArea(driver_.Connection(), AnyOf(Look().innermost));
    if (area.width <= 0 || area.height <= 0) return;
    driver_.PressAt(area.x + dice_.Roll(area.width), area.y + dice_.Roll(area.height));
}

void RandomUser::CloseAWindow() {
    if (Window const window = AnyOf(Look().shells)) driver_.RequestClose(window);
}

void RandomUser::DestroyAWindow() {
    if (Window const window = AnyOf(Look().innermost)) driver_.Destroy(window);
}

void RandomUser::KillTheConnection() {
    if (Window const window = driver_.FindHiddenWindow()) driver_.KillOwner(window);
}

}  // namespace tools
