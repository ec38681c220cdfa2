#include "foundation/files/file_descriptor.h"

#include <fcntl.h>

#include "foundation/files/file_errors.h"

namespace UnixPlatform {

FileDescriptor OpenLocation(FileLocation const& location, int flags) {
    char const* path = location.SystemPath();
    FileDescriptor file(Resumed([&] { return open(path, flags | O_CLOEXEC, 0666); }));
    if (!file.IsOpen()) ThrowFileError(location, errno);
    return file;
}

}  // namespace UnixPlatform
