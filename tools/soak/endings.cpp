#include <iostream>
#include <map>

#include "tools/soak/subject.h"

namespace tools {

namespace {

constexpr Milliseconds kPatience = std::chrono::seconds(30);

// Says it again and again, because the program may drop what comes along with something malformed.
template <class Say>
bool SayUntilItEnds(Subject& subject, Say say) {
    subject.client.Initialize();
    return WaitUntil(kPatience, [&] {
        say();
        return subject.client.Program().WaitForEnd(std::chrono::seconds(1)) != "running";
    });
}

struct Ending {
    char const* name;
    // Answers whether the program must end by this alone; where it need not, its client closes afterwards.
    bool (*bring_about)(Subject&);
    // Whether the program may end with 255: without a display, or by a protocol error.
    bool may_fail = false;
};

Ending const kEndings[] = {
    {"client closes",
     [](Subject& subject) {
         subject.client.Program().CloseReceiving();
         subject.client.Program().CloseSending();
         return true;
     }},
    {"client stops sending",
     [](Subject& subject) {
         subject.client.Program().CloseSending();
         return true;
     }},
    {"client stops reading",
     [](Subject& subject) {
         subject.client.Program().CloseReceiving();
         return SayUntilItEnds(subject, [&] { subject.client.SendOverdue(); });
     }},
    {"client sends too much", [](Subject& subject) { return subject.client.Program().SendBytes("\xff\xff\xff\xff"); }},
    {"nothing can be shown",
     [](Subject& subject) { return SayUntilItEnds(subject, [&] { subject.client.SendUnshowable(); }); }},
    {"server dies",
     [](Subject& subject) {
         bool const was_there = subject.user.SeesProgram();
         subject.display.Kill();
         return was_there;
     },
     true},
    {"connection is killed",
     [](Subject& subject) {
         bool const was_there = subject.user.SeesProgram();
         subject.user.KillTheConnection();
         return was_there;
     }},
    {"user closes a window",
     [](Subject& subject) {
         subject.user.CloseAWindow();
         return false;
     }},
    {"window is destroyed",
     [](Subject& subject) {
         subject.user.DestroyAWindow();
         subject.Live(std::chrono::seconds(2));
         return false;
     },
     true},
};

std::string Bring(Subject& subject, Ending const& ending) {
    if (subject.client.dice.Roll(5) > 0) subject.client.Initialize();
    subject.Live(Milliseconds(subject.client.dice.Roll(subject.client.dice.Roll(2) ? 1500 : 6000)));
    bool const alone = ending.bring_about(subject);
    if (!alone && subject.WaitForEnd(std::chrono::seconds(4)) == "running") subject.client.Program().CloseSending();
    return subject.WaitForEnd(kPatience);
}

std::string Bring(SoakOptions const& options, Ending const& ending) try {
    Subject subject(options);
    return Bring(subject, ending);
} catch (std::exception const& error) {
    return error.what();
}

}  // namespace

bool EndManyTimes(SoakOptions options, int times) {
    std::map<std::string, int> outcomes;
    bool right = true;
    for (int i = 0; i < times; ++i, ++options.seed) {
        Ending const& ending = kEndings[static_cast<size_t>(i) % std::size(kEndings)];
        std::string const outcome = Bring(options, ending);
        ++outcomes[std::string(ending.name) + ": " + outcome];
        if (outcome == "exit 0" || (outcome == "exit 255" && ending.may_fail)) continue;
        std::cout << "WRONG with --seed " << options.seed << ", " << ending.name << ": " << outcome << std::endl;
        right = false;
    }
    for (auto const& [outcome, count] : outcomes) std::cout << "  " << count << " times " << outcome << '\n';
    std::cout << times << " endings: " << (right ? "as they should be" : "NOT as they should be") << std::endl;
    return right;
}

}  // namespace tools
