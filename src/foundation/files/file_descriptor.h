#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

#include "foundation/files/file_location.h"

namespace UnixPlatform {

// Owns one open descriptor, or none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    // Takes over an open descriptor; -1 is none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(other.Release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { Close(); }

    bool IsOpen() const { return descriptor_ != -1; }
    int Get() const { return descriptor_; }
    int Release() { return std::exchange(descriptor_, -1); }

    // Closes the descriptor, if there is one; false, and errno set, when the system lost data that was written. An
    // interrupted close has closed.
    bool Close() { return !IsOpen() || close(Release()) == 0 || errno == EINTR; }

  private:
    int descriptor_ = -1;
};

// Repeats a system call that a signal interrupts.
template <class Call>
auto Resumed(Call call) {
    decltype(call()) result;
    do result = call();
    while (result == -1 && errno == EINTR);
    return result;
}

// Opens a location, closed on exec, with open's flags; a file that this creates gets the mode that the process's umask
// leaves of 0666. Throws a file error.
FileDescriptor OpenLocation(FileLocation const& location, int flags);

}  // namespace UnixPlatform
