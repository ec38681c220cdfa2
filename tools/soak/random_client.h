#pragma once

#include <set>
#include <string>

#include "tools/client_process.h"
#include "tools/soak/dice.h"

namespace tools {

// A client that sends whatever clients may send, in any order, now and then what none should, and that keeps account of
// the answers. All its texts can be shown in a UTF-8 locale.
//
// An answer to nothing, one that comes twice, an error report and a forced action that is not taken in time throw
// std::runtime_error.
class RandomClient {
  public:
    // Starts the program.
    RandomClient(Launch const& launch, std::string base_directory, unsigned seed);

    // The first message, with settings at random.
    void Initialize();
    // Sends something, mostly one message, and takes the answers that are there.
    void SendAnything();
    // Sends a forced action whose deadline has passed, which quiet mode does not hold up.
    void SendOverdue();
    // Sends a notice whose title cannot be shown: the program reports that and ends. A request would wait while the user is
    // asked something.
    void SendUnshowable();
    // Waits for the forced actions and withdraws everything that is open. Some seconds later nothing is on the screen.
    void Settle();
    void TakeAnswers();

    ClientProcess& Program() { return program_; }
    // The messages sent and the answers received so far.
    std::string Figures() const;

    // What all its choices come from.
    Dice dice;

  private:
    using ID = unsigned long;

    // Whether the program reads everything that is sent now.
    bool EachCounts() const;
    void Send(std::string const& document);
    void SendHostile();
    std::string Anything();
    std::string Request();
    std::string Message();
    std::string Removal();
    std::string Quiet();
    std::string Text();
    void CheckAnswer(std::string const& document);

    std::string base_directory_;
    ClientProcess program_;
    ID last_id_ = 0;
    std::set<ID> open_;          // may stand in the program; answered and withdrawn ones do not
    std::set<ID> answerable_;    // actions without an answer, withdrawn ones included: theirs may be under way
    std::set<ID> owed_;          // forced actions that will be taken by themselves
    Clock::time_point hostile_;  // when the program was last sent what makes it drop what comes along with it
    bool may_report_ = false;    // that something cannot be shown
    int sent_ = 0;
    int answers_ = 0;
};

}  // namespace tools
