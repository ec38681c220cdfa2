#pragma once

#include <sys/stat.h>

#include <ctime>
#include <optional>

#include "foundation/files/file_location.h"

namespace UnixPlatform {

// What the file system says about a location at one moment, symbolic links followed.
class UnixFileInfo {
  public:
    // Asks the file system. A path that leads through something that is no directory names nothing, as one whose last
    // component is missing. Throws a file error when the answer cannot be had.
    explicit UnixFileInfo(FileLocation const& location);

    bool Exists() const { return found_.has_value(); }
    bool IsDirectory() const { return found_ && S_ISDIR(found_->st_mode); }

    // Only of something that exists. Times count from 1970-01-01 00:00 UTC.
    mode_t Mode() const { return found_->st_mode; }
    std::timespec AccessTime() const { return found_->st_atim; }
    std::timespec ModificationTime() const { return found_->st_mtim; }

  private:
    std::optional<struct stat> found_;
};

}  // namespace UnixPlatform

using UnixPlatform::UnixFileInfo;
