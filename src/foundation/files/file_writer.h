#pragma once

#include "foundation/base/const_data.h"
#include "foundation/files/file_descriptor.h"

// A file open for writing, emptied if it existed and created otherwise. Closed at the latest with this object.
class FileWritingPath {
  public:
    // Throws a file error.
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
