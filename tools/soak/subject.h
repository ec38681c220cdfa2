#pragma once

#include <string>

#include "tools/files.h"
#include "tools/soak/random_client.h"
#include "tools/soak/random_user.h"
#include "tools/virtual_display.h"

namespace tools {

struct SoakOptions {
    std::string program;
    bool window_manager = false;
    unsigned seed = 1;
};

// A running program with an X server, a client and a user of its own.
struct Subject {
    explicit Subject(SoakOptions const& options);

    // Client and user do anything for that long, or until the program ends.
    void Live(Milliseconds span);
    // As in "exit 0"; reads what the program still says.
    std::string WaitForEnd(Milliseconds limit);

    TemporaryDirectory directory;
    VirtualDisplay display;
    RandomClient client;
    RandomUser user;
};

// Has client and user do anything for so many minutes. Each minute everything is withdrawn, and what the program then
// holds is printed. Answers whether that stopped growing once the program had warmed up.
bool RunForLong(SoakOptions const& options, int minutes);

// Starts the program that many times and ends it at some moment in one of many ways. Answers whether each time it ended
// with the status that it should.
bool EndManyTimes(SoakOptions options, int times);

}  // namespace tools
