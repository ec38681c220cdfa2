#include "foundation/files/file_reader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "foundation/files/file_errors.h"

FileReadingPath::FileReadingPath(FileLocation const& location)
    : location_(location), file_(UnixPlatform::OpenLocation(location, O_RDONLY)) {}

std::uint64_t FileReadingPath::Length() const {
    struct stat status;
    if (fstat(file_.Get(), &status) != 0) ThrowFileError(location_, errno);
    return static_cast<std::uint64_t>(status.st_size);
}

void FileReader::Read(ArrayOf<unsigned char> bytes) {
    while (!bytes.empty()) {
        auto count = UnixPlatform::Resumed([&] { return read(path_.file_.Get(), bytes.data(), bytes.size()); });
        if (count <= 0) ThrowFileError(path_.location_, count == 0 ? EIO : errno);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
}
