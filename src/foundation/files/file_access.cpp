#include "foundation/files/file_access.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "foundation/base/resumed.h"
#include "foundation/files/file_errors.h"

namespace UnixPlatform {

FileDescriptor OpenLocation(FileLocation const& location, int flags) {
    char const* path = location.SystemPath();
    FileDescriptor file(Resumed([&] { return open(path, flags | O_CLOEXEC, 0666); }));
    if (!file.IsOpen()) ThrowFileError(location, errno);
    return file;
}

}  // namespace UnixPlatform

FileReadingPath::FileReadingPath(FileLocation const& location)
    : location_(location), file_(UnixPlatform::OpenLocation(location, O_RDONLY)) {}

std::uint64_t FileReadingPath::Length() const {
    struct stat status;
    if (fstat(file_.Get(), &status) != 0) ThrowFileError(location_, errno);
    return static_cast<std::uint64_t>(status.st_size);
}

void FileReader::Read(ArrayOf<unsigned char> bytes) {
    while (!bytes.empty()) {
        auto count = Resumed([&] { return read(path_.file_.Get(), bytes.data(), bytes.size()); });
        if (count <= 0) ThrowFileError(path_.location_, count == 0 ? EIO : errno);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
}

FileWritingPath::FileWritingPath(FileLocation const& location)
    : location_(location), file_(UnixPlatform::OpenLocation(location, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW)) {}

void FileWritingPath::Close() {
    if (!file_.Close()) ThrowFileError(location_, errno);
}

void FileWriter::Write(ConstData bytes) {
    auto left = bytes.AsStringView();
    while (!left.empty()) {
        auto written = Resumed([&] { return write(path_.file_.Get(), left.data(), left.size()); });
        if (written <= 0) ThrowFileError(path_.location_, written == 0 ? EIO : errno);
        left.remove_prefix(static_cast<std::size_t>(written));
    }
}
