#include <array>
#include <iostream>
#include <map>
#include <stdexcept>

#include "tools/soak/subject.h"

namespace tools {

namespace {

Milliseconds const patience = std::chrono::seconds(30);

// Says it again and again, because the program may drop what comes along with something malformed.
template <class Say>
bool SayUntilItEnds(Subject& subject, Say say) {
    subject.Client().Initialize();
    return WaitUntil(patience, [&] {
        say();
        return subject.Client().Program().WaitForEnd(std::chrono::seconds(1)) != "running";
    });
}

bool ClientCloses(Subject& subject) {
    subject.Client().Program().CloseReceiving();
    subject.Client().Program().CloseSending();
    return true;
}
bool ClientStopsSending(Subject& subject) {
    subject.Client().Program().CloseSending();
    return true;
}
bool ClientStopsReading(Subject& subject) {
    subject.Client().Program().CloseReceiving();
    return SayUntilItEnds(subject, [&] { subject.Client().SendOverdue(); });
}
bool ClientSendsTooMuch(Subject& subject) {
    return subject.Client().Program().SendBytes("\xff\xff\xff\xff");
}
bool NothingCanBeShown(Subject& subject) {
    return SayUntilItEnds(subject, [&] { subject.Client().SendUnshowable(); });
}
bool ServerDies(Subject& subject) {
    bool const was_there = subject.User().SeesProgram();
    subject.Display().Kill();
    return was_there;
}
bool ConnectionIsKilled(Subject& subject) {
    bool const was_there = subject.User().SeesProgram();
    subject.User().KillTheConnection();
    return was_there;
}
bool UserCloses(Subject& subject) {
    subject.User().CloseAWindow();
    return false;
}
bool WindowIsDestroyed(Subject& subject) {
    subject.User().DestroyAWindow();
    subject.Live(std::chrono::seconds(2));
    return false;
}

struct Ending {
    char const* name;
    // Answers whether the program must end by this alone; where it need not, its client closes afterwards.
    bool (*bring_about)(Subject&);
    // Whether the program may end with 255: without a display, or by a protocol error.
    bool may_fail = false;
};

std::array const endings = {Ending{"client closes", ClientCloses},
                            Ending{"client stops sending", ClientStopsSending},
                            Ending{"client stops reading", ClientStopsReading},
                            Ending{"client sends too much", ClientSendsTooMuch},
                            Ending{"nothing can be shown", NothingCanBeShown},
                            Ending{"server dies", ServerDies, true},
                            Ending{"connection is killed", ConnectionIsKilled},
                            Ending{"user closes a window", UserCloses},
                            Ending{"window is destroyed", WindowIsDestroyed, true}};

std::string Bring(Subject& subject, Ending const& ending) {
    if (subject.Client().Roll(5) > 0) subject.Client().Initialize();
    subject.Live(Milliseconds(subject.Client().Roll(subject.Client().Roll(2) ? 1500 : 6000)));
    bool const alone = ending.bring_about(subject);
    if (!alone && subject.WaitForEnd(std::chrono::seconds(4)) == "running") subject.Client().Program().CloseSending();
    return subject.WaitForEnd(patience);
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
        Ending const& ending = endings[static_cast<size_t>(i) % endings.size()];
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
