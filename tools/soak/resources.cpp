#include "tools/soak/resources.h"

#include <X11/extensions/XRes.h>

#include <filesystem>
#include <fstream>

namespace tools {

namespace {

// The number in a line of /proc/PID/status, as in "Threads: 3"; see proc(5).
long StatusOf(pid_t pid, std::string const& name) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ":")) return std::stol(line.substr(name.size() + 1));
    }
    return 0;
}

long CountDescriptors(pid_t pid) {
    std::error_code gone;
    std::filesystem::directory_iterator const open("/proc/" + std::to_string(pid) + "/fd", gone);
    return std::distance(begin(open), end(open));
}

void AddServerResources(Display* display, Window window, Resources& resources) {
    int count = 0;
    XResType* types = nullptr;
    unsigned long bytes = 0;
    if (!XResQueryClientResources(display, window, &count, &types)) return;
    for (int i = 0; i < count; ++i) {
        char* name = XGetAtomName(display, types[i].resource_type);
        resources[name ? name : "unknown"] = types[i].count;
        XFree(name);
    }
    XFree(types);
    if (XResQueryClientPixmapBytes(display, window, &bytes)) resources["pixmap KiB"] = static_cast<long>(bytes / 1024);
}

}  // namespace

Resources ResourcesOf(pid_t pid, Display* display, Window window) {
    Resources resources{{"RSS KiB", StatusOf(pid, "VmRSS")},
                        {"threads", StatusOf(pid, "Threads")},
                        {"descriptors", CountDescriptors(pid)}};
    AddServerResources(display, window, resources);
    return resources;
}

XID BitsWithinProgram(Display* display) {
    int count = 0;
    XResClient* clients = nullptr;
    XResQueryClients(display, &count, &clients);
    XID const mask = count > 0 ? clients[0].resource_mask : 0;
    XFree(clients);
    return mask;
}

}  // namespace tools
