#include <sys/stat.h>

#include <cerrno>
#include <vector>

#include "foundation/files/directories.h"
#include "foundation/files/file_errors.h"
#include "foundation/files/file_info.h"

namespace {

// Whether the directory is there already.
bool IsDirectory(FileLocation const& location) {
    UnixFileInfo info(location);
    if (info.Exists() && !info.IsDirectory()) throw FileFoundError(EEXIST, location.AsStringView());
    return info.IsDirectory();
}

void CreateDirectory(FileLocation const& location) {
    if (mkdir(location.SystemPath(), 0777) == 0) return;
    if (errno != EEXIST) ThrowFileError(location, errno);
    // Somebody was faster, or a dangling link has the name.
    if (!IsDirectory(location)) throw FileFoundError(EEXIST, location.AsStringView());
}

}  // namespace

void CreateDirectoryTree(FileLocation const& location) {
    std::vector<FileLocation> missing;
    for (auto next = location; !IsDirectory(next); next = next.Parent()) missing.push_back(next);
    for (; !missing.empty(); missing.pop_back()) CreateDirectory(missing.back());
}
