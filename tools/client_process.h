#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tools/child_process.h"

namespace tools {

// The text preceded by its length, as both directions carry it: 4 bytes, least significant first.
std::string Frame(std::string_view text);

// The program under test with the client's ends of its two pipes.
//
// What it writes is checked to be frames that hold one document each; anything else throws std::runtime_error.
class ClientProcess {
  public:
    explicit ClientProcess(Launch const& launch);

    // Writes everything, waiting while the pipe is full. Returns false when the program no longer reads, or took nothing
    // for ten seconds.
    bool SendBytes(std::string_view bytes);
    bool SendFrame(std::string_view text) { return SendBytes(Frame(text)); }

    // The next document, or null when none arrived within `limit` or the program closed its end.
    std::optional<std::string> ReceiveFrame(Milliseconds limit);

    // How much the program has written that waits in the pipe.
    size_t WaitingBytes() const;

    void CloseSending() { to_program_.writing.Close(); }
    void CloseReceiving() { from_program_.reading.Close(); }

    // See ChildProcess.
    pid_t Pid() const { return process_.Pid(); }
    std::string WaitForEnd(Milliseconds limit) { return process_.WaitForEnd(limit); }

  private:
    std::optional<std::string> TakeFrame();
    bool ReadMore(Milliseconds limit);

    PipeEnds to_program_;
    PipeEnds from_program_;
    ChildProcess process_;
    std::string received_;
};

}  // namespace tools
