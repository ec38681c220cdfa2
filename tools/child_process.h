#pragma once

#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/waiting.h"

namespace tools {

// A file descriptor with one owner; -1 is none.
class Descriptor {
  public:
    explicit Descriptor(int value = -1) : value_(value) {}
    Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor() { Close(); }

    int Get() const { return value_; }
    void Close();

  private:
    int value_;
};

struct PipeEnds {
    Descriptor reading;
    Descriptor writing;
};

// A pipe whose ends no started program inherits by accident.
PipeEnds MakePipe();

// What to start, and with what.
struct Launch {
    std::string program;                                                 // a path, or a name to look up along PATH
    std::vector<std::string> arguments;                                  // those after the program's own name
    std::map<std::string, std::optional<std::string>> environment = {};  // changes to the caller's; null takes one away
    bool fixed_addresses = false;  // without address space randomisation, where the system allows that
};

// Whether it does allow it.
bool AddressesCanBeFixed();

// A running program, with the default signal dispositions whatever the caller's are. It outlives neither the object nor
// the thread that started it: both ends kill it.
class ChildProcess {
  public:
    // `input` and `output` become the program's descriptors 0 and 1; the caller keeps its own copies. A program that
    // cannot be executed ends with status 127.
    ChildProcess(Launch const& launch, int input, int output);
    ChildProcess(ChildProcess const&) = delete;
    ~ChildProcess();

    void Signal(int number) const;
    pid_t Pid() const { return pid_; }

    // How the program ended, as in "exit 0" or "signal 11", or "running" when it has not within `limit`.
    std::string WaitForEnd(Milliseconds limit);

  private:
    pid_t pid_;
    std::string ending_ = "running";
};

}  // namespace tools
