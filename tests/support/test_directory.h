#pragma once

#include <cstdlib>
#include <string_view>

#include "foundation/files/directories.h"
#include "foundation/files/file_access.h"

// For tests: an empty directory that goes, with everything in it, when this object does.
class TestDirectory {
  public:
    TestDirectory() {
        char pattern[] = "/tmp/test_directory.XXXXXX";
        top_ = FileLocation(mkdtemp(pattern));
    }
    TestDirectory(TestDirectory const&) = delete;
    TestDirectory& operator=(TestDirectory const&) = delete;
    ~TestDirectory() {
        DeleteContents(top_);
        rmdir(top_.SystemPath());
    }

    FileLocation const& Top() const { return top_; }
    // A path below the top, such as "/a/b".
    FileLocation At(std::string_view path) const { return FileLocation(Stringy(top_.AsStringView()).append(path)); }
    // Writes a whole file there.
    FileLocation Write(std::string_view path, ConstData bytes) const {
        auto location = At(path);
        FileWritingPath file(location);
        FileWriter(file).Write(bytes);
        file.Close();
        return location;
    }

  private:
    FileLocation top_;
};
