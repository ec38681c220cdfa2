#include "tools/child_process.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/personality.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace tools {

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    Close();
    value_ = std::exchange(other.value_, -1);
    return *this;
}

void Descriptor::Close() {
    if (value_ >= 0) close(std::exchange(value_, -1));
}

PipeEnds MakePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

bool AddressesCanBeFixed() {
    int const now = personality(0xffffffff);
    return personality(static_cast<unsigned long>(now) | ADDR_NO_RANDOMIZE) != -1 &&
           personality(static_cast<unsigned long>(now)) != -1;
}

namespace {

[[noreturn]] void Execute(Launch const& launch, int input, int output) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // An ignored signal would stay ignored in the program and hide that it does not guard itself.
    signal(SIGPIPE, SIG_DFL);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    if (launch.fixed_addresses) personality(ADDR_NO_RANDOMIZE);
    for (auto const& [name, value] : launch.environment) {
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
    std::vector<char*> arguments{const_cast<char*>(launch.program.c_str())};
    for (auto const& argument : launch.arguments) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execvp(launch.program.c_str(), arguments.data());
    _exit(127);
}

}  // namespace

ChildProcess::ChildProcess(Launch const& launch, int input, int output) : pid_(fork()) {
    if (pid_ < 0) throw std::runtime_error("cannot start " + launch.program);
    if (pid_ == 0) Execute(launch, input, output);
}

ChildProcess::~ChildProcess() {
    Signal(SIGKILL);
    WaitForEnd(std::chrono::seconds(10));
}

void ChildProcess::Signal(int number) const {
    if (ending_ == "running") kill(pid_, number);
}

std::string ChildProcess::WaitForEnd(Milliseconds limit) {
    WaitUntil(limit, [this] {
        int status = 0;
        if (ending_ != "running" || waitpid(pid_, &status, WNOHANG) != pid_) return ending_ != "running";
        ending_ = WIFEXITED(status) ? "exit " + std::to_string(WEXITSTATUS(status))
                                    : "signal " + std::to_string(WTERMSIG(status));
        return true;
    });
    return ending_;
}

}  // namespace tools
