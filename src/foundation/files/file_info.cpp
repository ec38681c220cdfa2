#include "foundation/files/file_info.h"

#include <cerrno>

#include "foundation/files/file_errors.h"

namespace UnixPlatform {

UnixFileInfo::UnixFileInfo(FileLocation const& location) {
    struct stat status;
    if (stat(location.SystemPath(), &status) == 0)
        found_ = status;
    else if (errno != ENOENT && errno != ENOTDIR)
        ThrowFileError(location, errno);
}

}  // namespace UnixPlatform
