#include "foundation/files/file_writer.h"

#include <fcntl.h>

#include "foundation/files/file_errors.h"

FileWritingPath::FileWritingPath(FileLocation const& location)
    : location_(location), file_(UnixPlatform::OpenLocation(location, O_WRONLY | O_CREAT | O_TRUNC)) {}

void FileWritingPath::Close() {
    if (!file_.Close()) ThrowFileError(location_, errno);
}

void FileWriter::Write(ConstData bytes) {
    auto left = bytes.AsStringView();
    while (!left.empty()) {
        auto written = UnixPlatform::Resumed([&] { return write(path_.file_.Get(), left.data(), left.size()); });
        if (written <= 0) ThrowFileError(path_.location_, written == 0 ? EIO : errno);
        left.remove_prefix(static_cast<std::size_t>(written));
    }
}
