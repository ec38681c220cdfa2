#include "foundation/files/file_location.h"

#include <algorithm>
#include <cerrno>

#include "foundation/files/file_errors.h"

namespace UnixPlatform {

namespace {

constexpr std::size_t kLongestName = 255;

FileName Combine(std::string_view first, std::string_view second) {
    return FileName::CombineNames(first.data(), first.size(), second.data(), second.size());
}

}  // namespace

void FileName::Set(char const* bytes, std::size_t length) {
    std::string_view name(bytes, length);
    if (name.empty() || name.size() > kLongestName) throw IllegalFileNameLength();
    if (name == "." || name == ".." || name.find('/') != name.npos) throw IllegalFileName(0, name);
    name_ = name;
}

FileName FileName::CombineNames(char const* first, std::size_t first_length, char const* second,
                                std::size_t second_length) {
    if (first_length >= kLongestName || second_length >= kLongestName - first_length) throw IllegalFileName();
    FileName joined;
    joined.name_.reserve(first_length + second_length);
    joined.name_.append(first, first_length).append(second, second_length);
    return joined;
}

FileName operator+(FileName const& first, FileName const& second) {
    return Combine(first.AsStringView(), second.AsStringView());
}
FileName operator+(FileName const& first, char const* second) {
    return Combine(first.AsStringView(), second);
}
FileName operator+(char const* first, FileName const& second) {
    return Combine(first, second.AsStringView());
}

bool FileLocation::IsRoot() const {
    if (!IsAbsolute()) return false;
    std::size_t depth = 0;
    for (std::size_t begin = 0, end; begin < path_.size(); begin = end + 1) {
        end = std::min(path_.find('/', begin), path_.size());
        auto component = AsStringView().substr(begin, end - begin);
        if (component.empty() || component == ".") continue;
        if (component != "..")
            ++depth;
        else if (depth > 0)
            --depth;
    }
    return depth == 0;
}

void FileLocation::RequireNonEmpty() const {
    if (IsEmpty()) throw EmptyFileLocationError();
}

bool FileLocation::Exists() const {
    return UnixFileInfo(*this).Exists();
}

FileLocation FileLocation::Parent() const {
    auto name_end = path_.find_last_not_of('/');
    if (name_end == path_.npos) return *this;
    auto slash = path_.rfind('/', name_end);
    if (slash == path_.npos) return {};
    auto parent_end = path_.find_last_not_of('/', slash);
    return FileLocation(parent_end == path_.npos ? "/" : AsStringView().substr(0, parent_end + 1));
}

FileLocation FileLocation::Child(FileName const& name) const {
    RequireNonEmpty();
    FileLocation child(*this);
    if (!path_.ends_with('/')) child.path_ += '/';
    child.path_ += name.AsStringView();
    return child;
}

char const* FileLocation::SystemPath() const {
    RequireNonEmpty();
    if (path_.find('\0') != path_.npos) ThrowFileError(*this, EINVAL);
    return path_.c_str();
}

UnixFileInfo::UnixFileInfo(FileLocation const& location) {
    struct stat status;
    if (stat(location.SystemPath(), &status) == 0)
        found_ = status;
    else if (errno != ENOENT && errno != ENOTDIR)
        ThrowFileError(location, errno);
}

}  // namespace UnixPlatform

FileLocation MakeFileLocation(UStringRef<UTF8> path) {
    return FileLocation(path.AsStringView());
}
