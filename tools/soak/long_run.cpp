#include <X11/Xlib.h>
#include <X11/extensions/XRes.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <vector>

#include "tools/soak/subject.h"

namespace tools {

namespace {

// What a program holds at one moment, by name: its memory in KiB ("RSS KiB"), that of its pixmaps in the X server
// ("pixmap KiB"), and counts: "descriptors", "threads", and one for each type of resource in the X server, as "WINDOW".
// What cannot be asked for is left out.
using Resources = std::map<std::string, long>;

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

// `window` is any window of the program's.
void AddServerResources(Display* display, Window window, Resources& resources) {
    int count = 0;
    XResType* types = nullptr;
    unsigned long bytes = 0;
    if (!XResQueryClientResources(display, window, &count, &types)) return;
    for (int i = 0; i < count; ++i) resources[AtomName(display, types[i].resource_type)] = types[i].count;
    XFree(types);
    if (XResQueryClientPixmapBytes(display, window, &bytes)) resources["pixmap KiB"] = static_cast<long>(bytes / 1024);
}

Resources ResourcesOf(Subject& subject) {
    pid_t const pid = subject.client.Program().Pid();
    DisplayDriver& screen = subject.user.Screen();
    Resources resources{{"RSS KiB", StatusOf(pid, "VmRSS")},
                        {"threads", StatusOf(pid, "Threads")},
                        {"descriptors", CountDescriptors(pid)}};
    AddServerResources(screen.Connection(), screen.FindHiddenWindow(), resources);
    return resources;
}

// The greatest of each in the samples from `begin` to `end`.
Resources Greatest(std::vector<Resources> const& samples, size_t begin, size_t end) {
    Resources greatest;
    for (size_t i = begin; i < end; ++i)
        for (auto const& [name, amount] : samples[i]) greatest[name] = std::max(greatest[name], amount);
    return greatest;
}

// A count may not grow at all; memory, of which the allocator keeps what it likes, by 2 percent and a MiB.
bool Grows(std::string const& name, long before, long after) {
    bool const is_memory = name.ends_with("KiB");
    return after > before + (is_memory ? before / 50 + 1024 : 0);
}

// The first third is warming up; the last must not hold more than the second.
bool StoppedGrowing(std::vector<Resources> const& samples) {
    size_t const third = samples.size() / 3;
    Resources const before = Greatest(samples, third, 2 * third);
    bool stopped = third > 0;
    for (auto const& [name, after] : Greatest(samples, 2 * third, samples.size())) {
        auto const known = before.find(name);
        if (known != before.end() && !Grows(name, known->second, after)) continue;
        std::cout << name << " grows to " << after << '\n';
        stopped = false;
    }
    return stopped;
}

// With nothing to decide, and with no dialog on the screen if clicks can bring that about.
Resources SampleAtRest(Subject& subject) {
    subject.client.Settle();
    for (int left = 200; left > 0 && subject.user.SeesDialogs(); --left) subject.user.ClickAnywhere();
    subject.client.Settle();
    return ResourcesOf(subject);
}

void Print(Resources const& resources) {
    for (auto const& [name, amount] : resources) std::cout << "  " << name << ' ' << amount;
    std::cout << std::endl;
}

}  // namespace

bool RunForLong(SoakOptions const& options, int minutes) {
    Subject subject(options);
    subject.client.Initialize();
    bool const there = WaitUntil(std::chrono::seconds(20), [&] { return subject.user.SeesProgram(); });
    if (!there) throw std::runtime_error("the program does not come to the display");
    std::vector<Resources> samples;
    for (int minute = 1; minute <= minutes; ++minute) {
        subject.Live(std::chrono::minutes(1));
        samples.push_back(SampleAtRest(subject));
        std::cout << minute << " min, " << subject.client.Figures() << ':';
        Print(samples.back());
    }
    subject.client.Program().CloseSending();
    std::string const ending = subject.WaitForEnd(std::chrono::seconds(30));
    bool const stopped = StoppedGrowing(samples);
    std::cout << "The long run: " << ending << ", " << (stopped ? "flat" : "NOT flat") << " after warming up\n";
    return ending == "exit 0" && stopped;
}

}  // namespace tools
