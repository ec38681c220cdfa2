#include "tools/windows.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

namespace tools {

namespace {

constexpr int kDeepestFrame = 3;

struct Family {
    Window parent = None;
    std::vector<Window> children;
};

Family FamilyOf(Display* display, Window window) {
    Family family;
    Window root = None;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &family.parent, &children, &count)) return family;
    if (children) family.children.assign(children, children + count);
    XFree(children);
    return family;
}

std::string Spelled(Display* display, Atom type, unsigned long value) {
    if (type == XA_WINDOW) return NameOf(display, value);
    return type == XA_ATOM ? AtomName(display, value) : std::to_string(value);
}

bool HasName(Display* display, Window window, std::string const& name) {
    return NameOf(display, window) == name || TitleOf(display, window) == name;
}

Window Search(Display* display, Window parent, std::string const& name, int depth) {
    for (Window child : FamilyOf(display, parent).children) {
        if (HasName(display, child, name)) return child;
        Window found = depth > 1 ? Search(display, child, name, depth - 1) : None;
        if (found) return found;
    }
    return None;
}

}  // namespace

void IgnoreErrors(Display* display) {
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XSetIOErrorHandler([](Display*) { return 0; });
    XSetIOErrorExitHandler(
        display, [](Display*, void*) {}, nullptr);
}

Window FindTopLevel(Display* display, std::string const& name) {
    return Search(display, DefaultRootWindow(display), name, kDeepestFrame);
}

std::string AtomName(Display* display, Atom atom) {
    char* const text = XGetAtomName(display, atom);
    std::string name(text ? text : "unknown");
    XFree(text);
    return name;
}

// The first of the two texts, each of which ends with a zero.
std::string NameOf(Display* display, Window window) {
    return PropertyOf(display, window, "WM_CLASS").c_str();
}

std::string PropertyOf(Display* display, Window window, std::string const& property) {
    Atom const name = XInternAtom(display, property.c_str(), False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, name, 0, 1 << 16, False, AnyPropertyType, &type, &format, &count, &rest, &data);
    std::string text(reinterpret_cast<char*>(data), format == 8 ? count : 0);
    if (format == 32 && count > 0) text = Spelled(display, type, *reinterpret_cast<unsigned long*>(data));
    XFree(data);
    return text;
}

std::string TitleOf(Display* display, Window window) {
    XTextProperty property{};
    char** texts = nullptr;
    int count = 0;
    if (!XGetWMName(display, window, &property)) return {};
    Xutf8TextPropertyToTextList(display, &property, &texts, &count);
    std::string title = count > 0 ? texts[0] : "";
    XFreeStringList(texts);
    XFree(property.value);
    return title;
}

bool IsOnScreen(Display* display, Window window) {
    XWindowAttributes attributes{};
    return window && XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsViewable;
}

Window ParentOf(Display* display, Window window) {
    return FamilyOf(display, window).parent;
}

std::vector<Window> ChildrenOf(Display* display, Window window) {
    return FamilyOf(display, window).children;
}

Area AreaOf(Display* display, Window window) {
    XWindowAttributes attributes{};
    Window child = None;
    Area area{};
    if (!XGetWindowAttributes(display, window, &attributes)) return area;
    XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &area.x, &area.y, &child);
    return {area.x, area.y, attributes.width, attributes.height};
}

Area VisibleArea(Display* display, Window window) {
    Area area = AreaOf(display, window);
    for (Window parent = ParentOf(display, window); parent != None; parent = ParentOf(display, parent)) {
        area = Intersect(area, AreaOf(display, parent));
    }
    return area;
}

Window WindowUnderPointer(Display* display) {
    Window window = None, root = None, child = DefaultRootWindow(display);
    int x = 0, y = 0, inner_x = 0, inner_y = 0;
    unsigned mask = 0;
    while (child != None) {
        window = child;
        if (!XQueryPointer(display, window, &root, &child, &x, &y, &inner_x, &inner_y, &mask)) break;
    }
    return window;
}

void SendClientMessage(Display* display, Window destination, XClientMessageEvent message) {
    XEvent event{};
    event.xclient = message;
    event.xclient.type = ClientMessage;
    bool to_manager = destination == DefaultRootWindow(display);
    long mask = to_manager ? SubstructureNotifyMask | SubstructureRedirectMask : NoEventMask;
    XSendEvent(display, destination, False, mask, &event);
    XFlush(display);
}

}  // namespace tools
