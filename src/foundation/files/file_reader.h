#pragma once

#include <cstdint>

#include "foundation/base/const_data.h"
#include "foundation/files/file_descriptor.h"

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
