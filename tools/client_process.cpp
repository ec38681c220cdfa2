#include "tools/client_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <stdexcept>

namespace tools {

namespace {

constexpr size_t kHeaderSize = 4;
constexpr size_t kLargestAnswer = 1 << 20;
constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<";

bool WaitFor(int descriptor, short events, Milliseconds limit) {
    pollfd entry{descriptor, events, 0};
    return poll(&entry, 1, static_cast<int>(limit.count())) > 0;
}

size_t LengthIn(std::string_view header) {
    size_t length = 0;
    for (size_t at = kHeaderSize; at-- > 0;) length = length << 8 | static_cast<unsigned char>(header[at]);
    return length;
}

}  // namespace

std::string Frame(std::string_view text) {
    std::string frame;
    for (unsigned shift = 0; shift < 32; shift += 8) frame += static_cast<char>(text.size() >> shift & 0xff);
    return frame.append(text);
}

ClientProcess::ClientProcess(Launch const& launch)
    : to_program_(MakePipe()),
      from_program_(MakePipe()),
      process_(launch, to_program_.reading.Get(), from_program_.writing.Get()) {
    to_program_.reading.Close();
    from_program_.writing.Close();
    signal(SIGPIPE, SIG_IGN);
    fcntl(to_program_.writing.Get(), F_SETFL, O_NONBLOCK);
}

bool ClientProcess::SendBytes(std::string_view bytes) {
    while (!bytes.empty()) {
        if (!WaitFor(to_program_.writing.Get(), POLLOUT, std::chrono::seconds(10))) return false;
        ssize_t written = write(to_program_.writing.Get(), bytes.data(), bytes.size());
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

std::optional<std::string> ClientProcess::ReceiveFrame(Milliseconds limit) {
    auto deadline = Clock::now() + limit;
    std::optional<std::string> frame = TakeFrame();
    while (!frame && ReadMore(Remaining(deadline))) frame = TakeFrame();
    return frame;
}

size_t ClientProcess::WaitingBytes() const {
    int count = 0;
    ioctl(from_program_.reading.Get(), FIONREAD, &count);
    return static_cast<size_t>(count);
}

std::optional<std::string> ClientProcess::TakeFrame() {
    if (received_.size() < kHeaderSize) return std::nullopt;
    size_t length = LengthIn(received_);
    if (length > kLargestAnswer) throw std::runtime_error("not a frame: " + received_);
    if (received_.size() < kHeaderSize + length) return std::nullopt;
    std::string text = received_.substr(kHeaderSize, length);
    received_.erase(0, kHeaderSize + length);
    if (!text.starts_with(kDeclaration)) throw std::runtime_error("not a document: " + text);
    return text;
}

bool ClientProcess::ReadMore(Milliseconds limit) {
    if (!WaitFor(from_program_.reading.Get(), POLLIN, limit)) return false;
    char block[4096];
    ssize_t got = read(from_program_.reading.Get(), block, sizeof block);
    if (got <= 0 && !received_.empty()) throw std::runtime_error("the last frame is cut short: " + received_);
    if (got <= 0) return false;
    received_.append(block, static_cast<size_t>(got));
    return true;
}

}  // namespace tools
