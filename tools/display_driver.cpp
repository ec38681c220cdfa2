#include "tools/display_driver.h"

#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace tools {

namespace {

constexpr Milliseconds kPatience = std::chrono::seconds(10);

Display* Open(std::string const& name) {
    Display* display = XOpenDisplay(name.c_str());
    if (!display) throw std::runtime_error("cannot open the display " + name);
    IgnoreErrors(display);
    return display;
}

// Whether a line of the border's colour goes round it, a pixel off its border of one.
bool IsOutlined(Display* display, Area const& area) {
    std::pair<int, int> const sides[] = {{area.x - 3, area.MiddleY()},
                                         {area.Right() + 2, area.MiddleY()},
                                         {area.MiddleX(), area.y - 3},
                                         {area.MiddleX(), area.Bottom() + 2}};
    auto const colour = PixelAt(display, area.x - 1, area.MiddleY());
    bool const apart = PixelAt(display, area.x - 2, area.MiddleY()) != colour;
    auto const drawn = [&](auto const& place) { return PixelAt(display, place.first, place.second) == colour; };
    return apart && std::ranges::all_of(sides, drawn);
}

}  // namespace

DisplayDriver::DisplayDriver(std::string const& name)
    : display_(Open(name)), root_(DefaultRootWindow(display_.get())), editres_(display_.get()) {}

Window DisplayDriver::WaitForWindow(std::string const& name, Milliseconds limit, Window other) {
    Window window = None;
    auto shown = [&] { return (window = FindWindow(name)) != other && IsOnScreen(display_.get(), window); };
    if (WaitUntil(limit, shown)) return window;
    throw std::runtime_error("no window " + name);
}

void DisplayDriver::WaitUntilGone(std::string const& name, Milliseconds limit) {
    if (WaitUntil(limit, [&] { return !IsOnScreen(display_.get(), FindWindow(name)); })) return;
    throw std::runtime_error("the window " + name + " stays");
}

size_t DisplayDriver::Count(std::string const& name) {
    auto const windows = ChildrenOf(display_.get(), root_);
    auto const named = [&](Window window) { return NameOf(display_.get(), window) == name; };
    return static_cast<size_t>(std::ranges::count_if(windows, named));
}

RemoteWidget DisplayDriver::FindWidget(Window shell, std::string const& path) {
    auto const tree = editres_.ReadTree(shell);
    auto const found = tree.find(path);
    if (found == tree.end()) throw std::runtime_error("no widget " + path);
    return found->second;
}

std::set<std::string> DisplayDriver::SensitiveControls(Window shell) {
    std::set<std::string> sensitive;
    for (auto const& [path, widget] : editres_.ReadTree(shell)) {
        if (widget.class_name != "List" && widget.class_name != "Command") continue;
        if (editres_.ReadResource(shell, widget, "sensitive") == "true") sensitive.insert(path);
    }
    return sensitive;
}

std::string DisplayDriver::OutlinedControls(Window shell) {
    std::string outlined;
    for (auto const& [path, widget] : editres_.ReadTree(shell)) {
        bool const in_form = std::ranges::count(path, '.') == 1;
        if (in_form && IsOutlined(display_.get(), AreaOf(display_.get(), widget.window))) outlined += path;
    }
    return outlined.empty() ? "none" : outlined;
}

// A text's scroll bar is a child of its window, but no child of its widget.
Window DisplayDriver::WindowOf(Window shell, std::string const& path) {
    std::string_view const scroll_bar = ".vScrollbar";
    if (!path.ends_with(scroll_bar)) return FindWidget(shell, path).window;
    Window text = FindWidget(shell, path.substr(0, path.size() - scroll_bar.size())).window;
    auto children = ChildrenOf(display_.get(), text);
    if (children.empty()) throw std::runtime_error("no widget " + path);
    return children.front();
}

std::string DisplayDriver::ReadResource(Window shell, std::string const& path, std::string const& resource) {
    return editres_.ReadResource(shell, FindWidget(shell, path), resource);
}

void DisplayDriver::WaitUntilDrawn(Window shell) {
    editres_.ReadTree(shell);
}

bool DisplayDriver::Point(Window window, int x, int y) {
    PointAt(x, y);
    return WindowUnderPointer(display_.get()) == window;
}

// Moves the pointer there once the window really is there: it may just be being moved, or still be covered.
void DisplayDriver::PointAt(Window window, int x, int y) {
    if (!WaitUntil(kPatience, [&] { return Point(window, x, y); }))
        throw std::runtime_error("the widget is not under the pointer");
}

void DisplayDriver::Button(unsigned button, bool down) {
    XTestFakeButtonEvent(display_.get(), button, down, CurrentTime);
    XFlush(display_.get());
}

void DisplayDriver::PointAt(int x, int y) {
    XTestFakeMotionEvent(display_.get(), DefaultScreen(display_.get()), x, y, CurrentTime);
    XFlush(display_.get());
}

void DisplayDriver::PressAt(int x, int y) {
    PointAt(x, y);
    Button(Button1, true);
    Button(Button1, false);
}

void DisplayDriver::PressOn(Window window, Area const& place) {
    PointAt(window, place.MiddleX(), place.MiddleY());
    PressAt(place.MiddleX(), place.MiddleY());
}

void DisplayDriver::Press(Window shell, std::string const& path) {
    Window window = WindowOf(shell, path);
    PressOn(window, VisibleArea(display_.get(), window));
}

// Its frame is drawn when the pointer comes in.
bool DisplayDriver::AnswersPointer(Window shell, Window button) {
    Area area = VisibleArea(display_.get(), button);
    PointAt(ParentOf(display_.get(), button), area.x - 2, area.y);
    WaitUntilDrawn(shell);
    auto frame = PixelAt(display_.get(), area.x, area.y);
    PointAt(button, area.MiddleX(), area.MiddleY());
    WaitUntilDrawn(shell);
    return PixelAt(display_.get(), area.x, area.y) != frame;
}

void DisplayDriver::Click(Window shell, std::string const& path) {
    Window button = WindowOf(shell, path);
    if (!WaitUntil(kPatience, [&] { return AnswersPointer(shell, button); })) {
        throw std::runtime_error(path + " does not answer to the pointer");
    }
    PressOn(button, VisibleArea(display_.get(), button));
}

std::vector<TextLine> DisplayDriver::LinesOf(Window shell, Window list, size_t least) {
    std::vector<TextLine> lines;
    auto drawn = [&] {
        WaitUntilDrawn(shell);
        lines = FindTextLines(display_.get(), VisibleArea(display_.get(), list));
        return lines.size() >= least;
    };
    if (least == 0 || !WaitUntil(kPatience, drawn)) throw std::runtime_error("no such line is on view");
    return lines;
}

void DisplayDriver::SelectLine(Window shell, std::string const& path, size_t line) {
    Window list = WindowOf(shell, path);
    auto selected = [&] {
        Area const place = LinesOf(shell, list, line)[line - 1].area;
        if (!Point(list, place.MiddleX(), place.MiddleY())) return false;
        PressAt(place.MiddleX(), place.MiddleY());
        return LinesOf(shell, list, line)[line - 1].IsHighlighted();
    };
    if (!WaitUntil(kPatience, selected)) throw std::runtime_error(path + " does not let its lines be selected");
}

bool DisplayDriver::LinesLookAlike(Window shell, std::string const& path, size_t one, size_t other) {
    auto lines = LinesOf(shell, WindowOf(shell, path), std::max(one, other));
    return LookAlike(display_.get(), lines[one - 1].area, lines[other - 1].area);
}

void DisplayDriver::Drag(Window shell, std::string const& path, double from, double to, unsigned button) {
    Window window = WindowOf(shell, path);
    Area area = VisibleArea(display_.get(), window);
    auto at = [&](double fraction) { return area.y + static_cast<int>(fraction * (area.height - 1)); };
    PointAt(window, area.MiddleX(), at(from));
    Button(button, true);
    XTestFakeMotionEvent(display_.get(), DefaultScreen(display_.get()), area.MiddleX(), at(to), CurrentTime);
    Button(button, false);
}

void DisplayDriver::Type(std::string const& key) {
    auto press = [this](std::string const& name, bool down) {
        KeyCode const code = XKeysymToKeycode(display_.get(), XStringToKeysym(name.c_str()));
        if (code == 0) throw std::runtime_error("no key " + name);
        XTestFakeKeyEvent(display_.get(), code, down, CurrentTime);
    };
    auto const plus = key.find('+');
    auto const modifier = plus == std::string::npos ? "" : key.substr(0, plus) + "_L";
    if (plus != std::string::npos) press(modifier, true);
    for (bool down : {true, false}) press(key.substr(plus + 1), down);
    if (plus != std::string::npos) press(modifier, false);
    XFlush(display_.get());
}

void DisplayDriver::TurnWheel(Window shell, std::string const& path, bool up) {
    Window const window = WindowOf(shell, path);
    Area const area = VisibleArea(display_.get(), window);
    PointAt(window, area.MiddleX(), area.MiddleY());
    for (bool down : {true, false}) Button(up ? Button4 : Button5, down);
}

void DisplayDriver::Resize(Window window, unsigned width, unsigned height) {
    XResizeWindow(display_.get(), window, width, height);
    XFlush(display_.get());
}

void DisplayDriver::WorkIn(std::string const& name) {
    Window const window = XCreateSimpleWindow(display_.get(), root_, 100, 100, 1000, 800, 0, 0, 0);
    XClassHint hint = {const_cast<char*>(name.c_str()), const_cast<char*>("Work")};
    XSetClassHint(display_.get(), window, &hint);
    XMapWindow(display_.get(), window);
    auto const has_keyboard = [&] {
        if (!IsOnScreen(display_.get(), window)) return false;
        PressOn(window, VisibleArea(display_.get(), window));
        return ActiveWindow() == name;
    };
    if (!WaitUntil(kPatience, has_keyboard)) throw std::runtime_error(name + " does not get the keyboard");
}

std::string DisplayDriver::UppermostWindow() {
    auto frames = ChildrenOf(display_.get(), root_);
    for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame) {
        if (!IsOnScreen(display_.get(), *frame)) continue;
        for (Window window = *frame; window != None;) {
            // Which only windows have that are managed.
            if (!ReadProperty(window, "WM_STATE").empty()) return NameOf(display_.get(), window);
            auto const inside = ChildrenOf(display_.get(), window);
            window = inside.empty() ? None : inside.back();
        }
    }
    return {};
}

std::string DisplayDriver::ReadText(Window shell, std::string const& path) {
    Area bar = AreaOf(display_.get(), WindowOf(shell, path + ".vScrollbar"));
    Window window = WindowOf(shell, path);
    Area text = VisibleArea(display_.get(), window);
    XStoreBytes(display_.get(), "", 0);
    PointAt(window, bar.Right() + 3, text.y + 3);
    Button(Button1, true);
    PointAt(window, text.Right() - 3, text.Bottom() - 3);
    Button(Button1, false);
    WaitUntilDrawn(shell);
    int size = 0;
    char* bytes = XFetchBytes(display_.get(), &size);
    std::string selected(bytes ? bytes : "", static_cast<size_t>(size));
    XFree(bytes);
    return selected;
}

XClientMessageEvent DisplayDriver::MessageTo(Window window, char const* type, int format) {
    XClientMessageEvent message{};
    message.window = window;
    message.message_type = XInternAtom(display_.get(), type, False);
    message.format = format;
    return message;
}

void DisplayDriver::RequestClose(Window window) {
    bool const managed = !ReadProperty(root_, "_NET_SUPPORTED").empty();
    if (!managed) return SendProtocol(window, "WM_DELETE_WINDOW");
    SendClientMessage(display_.get(), root_, MessageTo(window, "_NET_CLOSE_WINDOW", 32));
}

void DisplayDriver::SendProtocol(Window window, char const* protocol) {
    auto message = MessageTo(window, "WM_PROTOCOLS", 32);
    message.data.l[0] = static_cast<long>(XInternAtom(display_.get(), protocol, False));
    SendClientMessage(display_.get(), window, message);
}

// The type is one that no program knows.
void DisplayDriver::SendOpen(std::string_view data) {
    Window const window = FindHiddenWindow();
    auto message = MessageTo(window, "SCRIPTED_CLIENT", 8);
    data.copy(message.data.b, sizeof message.data.b);
    SendClientMessage(display_.get(), window, message);
}

void DisplayDriver::Destroy(Window window) {
    XDestroyWindow(display_.get(), window);
    XSync(display_.get(), False);
}

void DisplayDriver::KillOwner(Window window) {
    XKillClient(display_.get(), window);
    XSync(display_.get(), False);
}

void DisplayDriver::LeaveFonts(std::filesystem::path const& directory, std::map<std::string, std::string> fonts) {
    fonts["cursor"] = "cursor";
    std::ofstream list(directory / "fonts.dir");
    list << fonts.size() << "\n";
    for (auto const& [font, name] : fonts) {
        std::string const file = font + ".pcf.gz";
        std::error_code missing;
        std::filesystem::copy_file("/usr/share/fonts/X11/misc/" + file, directory / file, missing);
        list << file << " " << name << "\n";
    }
    list.close();
    std::string path = directory.string() + ":unscaled";
    char* paths[] = {path.data()};
    XSetFontPath(display_.get(), paths, 1);
    XSync(display_.get(), False);
}

unsigned long DisplayDriver::PixelIn(Window window, int x, int y) {
    Area area = AreaOf(display_.get(), window);
    return PixelAt(display_.get(), area.x + x, area.y + y);
}

void DisplayDriver::Screenshot(std::filesystem::path const& file, Window window) {
    Window parent = window;
    for (; parent != None && parent != root_; parent = ParentOf(display_.get(), parent)) window = parent;
    SaveScreenshot(display_.get(), AreaOf(display_.get(), window == None ? root_ : window), file);
}

}  // namespace tools
