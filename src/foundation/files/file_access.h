#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <utility>

#include "foundation/base/const_data.h"
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

// Opens a location, closed on exec, with open's flags; a file that this creates gets the mode that the process's umask
// leaves of 0666. Throws a file error.
FileDescriptor OpenLocation(FileLocation const& location, int flags);

}  // namespace UnixPlatform

// A file open for reading. Closed with this object.
class FileReadingPath {
  public:
    // Throws a file error.
    explicit FileReadingPath(FileLocation const& location);

    // How many bytes the file holds now. Throws a file error.
    std::uint64_t Length() const;

  private:
    friend class FileReader;
    FileLocation location_;
    UnixPlatform::FileDescriptor file_;
};

// Reads a file from its beginning, one piece after the other. The path must outlive it.
class FileReader {
  public:
    explicit FileReader(FileReadingPath& path) : path_(path) {}

    // Fills all of `bytes`, however many calls the system takes for that. Throws a file error, among others when the
    // file ends before.
    void Read(ArrayOf<unsigned char> bytes);

  private:
    FileReadingPath& path_;
};

// A file open for writing, emptied if it existed and created otherwise. Closed at the latest with this object.
class FileWritingPath {
  public:
    // Throws a file error, also when a symbolic link has the name: what is written goes where the name says.
    explicit FileWritingPath(FileLocation const& location);

    // Closes the file; throws a file error when what was written did not reach it. Only a file closed by this call is
    // known to be complete.
    void Close();

  private:
    friend class FileWriter;
    FileLocation location_;
    UnixPlatform::FileDescriptor file_;
};

// Writes bytes to a file, one piece after the other. The path must outlive it.
class FileWriter {
  public:
    explicit FileWriter(FileWritingPath& path) : path_(path) {}

    // Writes all of the bytes, however many calls the system takes for that. Throws a file error.
    void Write(ConstData bytes);

  private:
    FileWritingPath& path_;
};
