#include <iostream>
#include <map>

#include "tools/soak/subject.h"

namespace tools {

namespace {

constexpr Milliseconds kPatience = std::chrono::seconds(30);

// Says it again and again, because the program may drop what comes along with something malformed: what starts it, too.
template <class Say>
void SayUntilItEnds(Subject& subject, Say say) {
    WaitUntil(kPatience, [&] {
        subject.client.Initialize();
        say();
        return subject.client.Program().WaitForEnd(std::chrono::seconds(1)) != "running";
    });
}

// Whether the program must end by this alone; where it need not, its client closes afterwards.
enum class Ends { Surely, IfOnDisplay, Perhaps };

struct Ending {
    char const* name;
    Ends ends;
    void (*bring_about)(Subject&);
    // Whether the program may end with 255: without a display, or by a protocol error.
    bool may_fail = false;
};

Ending const kEndings[] = {
    {"client closes", Ends::Surely,
     [](Subject& subject) {
         subject.client.Program().CloseReceiving();
         subject.client.Program().CloseSending();
     }},
    {"client stops sending", Ends::Surely, [](Subject& subject) { subject.client.Program().CloseSending(); }},
    {"client stops reading", Ends::Surely,
     [](Subject& subject) {
         subject.client.Program().CloseReceiving();
         SayUntilItEnds(subject, [&] { subject.client.SendOverdue(); });
     }},
    {"client sends too much", Ends::Surely,
     [](Subject& subject) { subject.client.Program().SendBytes("\xff\xff\xff\xff"); }},
    {"nothing can be shown", Ends::Surely,
     [](Subject& subject) { SayUntilItEnds(subject, [&] { subject.client.SendUnshowable(); }); }},
    {"server dies", Ends::IfOnDisplay, [](Subject& subject) { subject.display.Kill(); }, true},
    {"connection is killed", Ends::IfOnDisplay, [](Subject& subject) { subject.user.KillTheConnection(); }},
    {"user closes a window", Ends::Perhaps, [](Subject& subject) { subject.user.CloseAWindow(); }},
    {"window is destroyed", Ends::Perhaps,
     [](Subject& subject) {
         subject.user.DestroyAWindow();
         subject.Live(std::chrono::seconds(2));
     },
     true},
};

std::string Bring(Subject& subject, Ending const& ending) {
    auto& client = subject.client;
    if (client.dice.Roll(5) > 0) client.Initialize();
    subject.Live(Milliseconds(client.dice.Roll(client.dice.Roll(2) ? 1500 : 6000)));
    bool const alone = ending.ends == Ends::Surely || (ending.ends == Ends::IfOnDisplay && subject.user.SeesProgram());
    ending.bring_about(subject);
    if (!alone && subject.WaitForEnd(std::chrono::seconds(4)) == "running") client.Program().CloseSending();
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
