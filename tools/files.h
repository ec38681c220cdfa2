#pragma once

#include <filesystem>
#include <string>

namespace tools {

// A directory that goes, with everything in it, when this object does.
class TemporaryDirectory {
  public:
    // Throws std::runtime_error when none can be made.
    TemporaryDirectory();
    TemporaryDirectory(TemporaryDirectory const&) = delete;
    ~TemporaryDirectory();

    std::filesystem::path const& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// What the file holds. Throws std::runtime_error when it cannot be read.
std::string ReadFile(std::filesystem::path const& file);

}  // namespace tools
