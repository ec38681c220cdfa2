#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

// An empty directory that goes, with everything in it, when the object does.
class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "xqenclientui.XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    TemporaryDirectory(TemporaryDirectory const&) = delete;
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::filesystem::path const& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};
