#include "tools/display_driver.h"

#include <X11/extensions/XTest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace tools {

namespace {

Milliseconds const patience = std::chrono::seconds(5);

Display* Open(std::string const& name) {
    Display* display = XOpenDisplay(name.c_str());
    if (!display) throw std::runtime_error("cannot open the display " + name);
    IgnoreErrors(display);
    return display;
}

}  // namespace

DisplayDriver::DisplayDriver(std::string const& name)
    : display_(Open(name)), root_(DefaultRootWindow(display_.get())), editres_(display_.get()) {}

Window DisplayDriver::WaitForWindow(std::string const& name, Milliseconds limit) {
    Window window = None;
    if (WaitUntil(limit, [&] { return IsOnScreen(display_.get(), window = FindWindow(name)); })) return window;
    throw std::runtime_error("no window " + name);
}

void DisplayDriver::WaitUntilGone(std::string const& name, Milliseconds limit) {
    if (WaitUntil(limit, [&] { return !IsOnScreen(display_.get(), FindWindow(name)); })) return;
    throw std::runtime_error("the window " + name + " stays");
}

RemoteWidget DisplayDriver::FindWidget(Window shell, std::string const& path) {
    std::vector<std::string> parts;
    for (auto& widget : editres_.ReadTree(shell, patience)) {
        parts.resize(widget.ids.size() - 1);
        parts.push_back(widget.name.empty() ? widget.class_name : widget.name);
        std::string here;
        for (size_t part = 1; part < parts.size(); ++part) here += (part > 1 ? "." : "") + parts[part];
        if (here == path) return widget;
    }
    throw std::runtime_error("no widget " + path);
}

std::string DisplayDriver::ReadResource(Window shell, std::string const& path, std::string const& resource) {
    return editres_.ReadResource(shell, FindWidget(shell, path), resource, patience);
}

void DisplayDriver::WaitUntilDrawn(Window shell) {
    editres_.ReadTree(shell, patience);
}

// Moves the pointer there once the window really is there: it may just be being moved, or still be covered.
void DisplayDriver::PointAt(Window window, int x, int y) {
    auto arrived = [&] {
        XTestFakeMotionEvent(display_.get(), DefaultScreen(display_.get()), x, y, CurrentTime);
        return WindowUnderPointer(display_.get()) == window;
    };
    if (!WaitUntil(patience, arrived)) throw std::runtime_error("the widget is not under the pointer");
}

void DisplayDriver::PressAt(Window window, Area const& place) {
    PointAt(window, place.MiddleX(), place.MiddleY());
    XTestFakeButtonEvent(display_.get(), Button1, True, CurrentTime);
    XTestFakeButtonEvent(display_.get(), Button1, False, CurrentTime);
    XFlush(display_.get());
}

void DisplayDriver::Click(Window shell, std::string const& path) {
    Window window = FindWidget(shell, path).window;
    PressAt(window, VisibleArea(display_.get(), window));
}

void DisplayDriver::ClickLine(Window shell, std::string const& path, size_t line) {
    Window window = FindWidget(shell, path).window;
    std::vector<Area> lines;
    auto drawn = [&] {
        lines = FindTextLines(display_.get(), VisibleArea(display_.get(), window));
        return lines.size() >= line;
    };
    if (line == 0 || !WaitUntil(patience, drawn)) throw std::runtime_error(path + " shows no such line");
    PressAt(window, lines[line - 1]);
}

void DisplayDriver::Drag(Window shell, std::string const& path, double from, double to) {
    Window window = FindWidget(shell, path).window;
    Area area = VisibleArea(display_.get(), window);
    auto at = [&](double fraction) { return area.y + static_cast<int>(fraction * (area.height - 1)); };
    PointAt(window, area.MiddleX(), at(from));
    XTestFakeButtonEvent(display_.get(), Button1, True, CurrentTime);
    XTestFakeMotionEvent(display_.get(), DefaultScreen(display_.get()), area.MiddleX(), at(to), CurrentTime);
    XTestFakeButtonEvent(display_.get(), Button1, False, CurrentTime);
    XFlush(display_.get());
}

bool DisplayDriver::IsManaged() {
    int count = 0;
    Atom* names = XListProperties(display_.get(), root_, &count);
    Atom wanted = MakeAtom("_NET_SUPPORTING_WM_CHECK");
    bool found = std::find(names, names + count, wanted) != names + count;
    XFree(names);
    return found;
}

void DisplayDriver::RequestClose(Window window) {
    bool managed = IsManaged();
    XClientMessageEvent message{};
    message.window = window;
    message.format = 32;
    message.message_type = MakeAtom(managed ? "_NET_CLOSE_WINDOW" : "WM_PROTOCOLS");
    message.data.l[0] = managed ? CurrentTime : static_cast<long>(MakeAtom("WM_DELETE_WINDOW"));
    SendClientMessage(display_.get(), managed ? root_ : window, message);
}

void DisplayDriver::SendText(Window window, std::string const& text) {
    XClientMessageEvent message{};
    message.window = window;
    message.format = 8;
    message.message_type = MakeAtom("SCRIPTED_CLIENT");
    text.copy(message.data.b, sizeof message.data.b);
    SendClientMessage(display_.get(), window, message);
}

void DisplayDriver::Screenshot(std::filesystem::path const& file, Window window) {
    Window parent = window;
    for (; parent != None && parent != root_; parent = ParentOf(display_.get(), parent)) window = parent;
    SaveScreenshot(display_.get(), AreaOf(display_.get(), window == None ? root_ : window), file);
}

}  // namespace tools
