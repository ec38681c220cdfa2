#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "tools/soak/subject.h"

namespace tools {

namespace {

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
    subject.Client().Settle();
    for (int left = 200; left > 0 && subject.User().SeesDialogs(); --left) subject.User().ClickAnywhere();
    subject.Client().Settle();
    return subject.User().ResourcesOf(subject.Client().Program().Pid());
}

void Print(Resources const& resources) {
    for (auto const& [name, amount] : resources) std::cout << "  " << name << ' ' << amount;
    std::cout << std::endl;
}

}  // namespace

bool RunForLong(SoakOptions const& options, int minutes) {
    Subject subject(options);
    subject.Client().Initialize();
    bool const there = WaitUntil(std::chrono::seconds(20), [&] { return subject.User().SeesProgram(); });
    if (!there) throw std::runtime_error("the program does not come to the display");
    std::vector<Resources> samples;
    for (int minute = 1; minute <= minutes; ++minute) {
        subject.Live(std::chrono::minutes(1));
        samples.push_back(SampleAtRest(subject));
        std::cout << minute << " min, " << subject.Client().Figures() << ':';
        Print(samples.back());
    }
    subject.Client().Program().CloseSending();
    std::string const ending = subject.WaitForEnd(std::chrono::seconds(30));
    bool const stopped = StoppedGrowing(samples);
    std::cout << "The long run: " << ending << ", " << (stopped ? "flat" : "NOT flat") << " after warming up\n";
    return ending == "exit 0" && stopped;
}

}  // namespace tools
