#pragma once

#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/base/debuggable_exception.h"
#include "foundation/files/file_location.h"

// The failures of file names, locations and operations: one base, one class for each kind of failure.
//
// The classes stand in the global namespace because the message names them as the type information records them.

// Anything that went wrong with a file, and the base of the more particular failures below.
class FileIOError : public DebuggableException {
  public:
    // `error_number` is an errno value, 0 for none. The texts name the locations concerned, empty for none; they are
    // copied.
    explicit FileIOError(int error_number = 0, std::string_view location = {}, std::string_view other = {})
        : error_number_(error_number), location_(location), other_(other) {}

    // The message text, made at the first call and valid as long as this object.
    char const* what() const noexcept override;

    // For example: File error "17FileNotFoundError" on "/a/b": No such file or directory
    Stringy MakeErrorMessage() const;

  private:
    int error_number_;
    Stringy location_;
    Stringy other_;
    mutable Stringy message_;
};

class FileNotFoundError : public FileIOError {
    using FileIOError::FileIOError;
};
class DirectoryNotFoundError : public FileIOError {
    using FileIOError::FileIOError;
};
class FilePermissionError : public FileIOError {
    using FileIOError::FileIOError;
};
class FileLockError : public FileIOError {
    using FileIOError::FileIOError;
};
// Memory or descriptors are used up.
class FileResourceError : public FileIOError {
    using FileIOError::FileIOError;
};
// Something else stands where a directory was wanted.
class FileFoundError : public FileIOError {
    using FileIOError::FileIOError;
};
class EmptyFileLocationError : public FileIOError {
    using FileIOError::FileIOError;
};
// Not the name of one entry of a directory.
class IllegalFileName : public FileIOError {
    using FileIOError::FileIOError;
};
class IllegalFileNameLength : public FileIOError {
    using FileIOError::FileIOError;
};

// Throws the failure that matches an errno value, naming the location.
[[noreturn]] void ThrowFileError(FileLocation const& location, int error_number);
