#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/text/ustring_ref.h"

namespace UnixPlatform {

// The name of one directory entry, as bytes in whatever encoding the file system keeps them. An empty name is a value
// of its own: it names nothing.
class FileName {
  public:
    FileName() = default;
    // Checked as Set checks.
    explicit FileName(std::string_view name) { Set(name.data(), name.size()); }

    // Takes a name of 1 to 255 bytes (else throws IllegalFileNameLength) that is neither "." nor ".." and holds no "/"
    // (else throws IllegalFileName). A name that is refused leaves this one as it was.
    void Set(char const* bytes, std::size_t length);

    // Takes any bytes as they are. Whoever uses such a name as a file's must know where it comes from.
    void SafeSet(char const* bytes, std::size_t length) { name_.assign(bytes, length); }

    // Joins two pieces without the checks of Set.
    //
    // A joined name holds at most 254 bytes, or IllegalFileName is thrown, although a name set directly may hold 255:
    // meant, translation files are looked up by joined names and what was refused once stays refused.
    static FileName CombineNames(char const* first, std::size_t first_length, char const* second,
                                 std::size_t second_length);

    bool IsEmpty() const { return name_.empty(); }
    // Valid until this name changes.
    std::string_view AsStringView() const { return name_; }

    bool operator==(FileName const&) const = default;

  private:
    Stringy name_;
};

// Join, each as CombineNames does.
FileName operator+(FileName const& first, FileName const& second);
FileName operator+(FileName const& first, char const* second);
FileName operator+(char const* first, FileName const& second);

// Where a file or directory is: a path, meant to be absolute, as bytes in whatever encoding the file system keeps
// them. Nothing is checked on construction; an empty location names nothing, and every operation refuses it before it
// asks the system for anything.
class FileLocation {
  public:
    FileLocation() = default;
    explicit FileLocation(std::string_view path) : path_(path) {}

    bool IsEmpty() const { return path_.empty(); }
    bool IsAbsolute() const { return path_.starts_with('/'); }

    // Whether the path leads back to the root by its text alone: "/", "//", "/.", "/a/..". Symbolic links are not
    // looked at.
    bool IsRoot() const;

    // Throws EmptyFileLocationError for the empty location.
    void RequireNonEmpty() const;

    // Whether anything is there, symbolic links followed. Throws as UnixFileInfo does.
    bool Exists() const;

    // The directory that holds this, by the text alone. The root is its own parent; a relative path of one component
    // has the empty location for its parent.
    FileLocation Parent() const;
    // The entry of that name in this directory. Throws EmptyFileLocationError when this is empty.
    FileLocation Child(FileName const& name) const;
    // The entry of that name beside this one.
    FileLocation Sibling(FileName const& name) const { return Parent().Child(name); }

    // Valid until this location changes.
    std::string_view AsStringView() const { return path_; }

    // The path for a system call: throws EmptyFileLocationError when it is empty and FileIOError when it holds a zero
    // byte, at which the system would cut it short. Valid until this location changes.
    char const* SystemPath() const;

    // Byte by byte: two spellings of one path differ.
    bool operator==(FileLocation const&) const = default;

  private:
    Stringy path_;
};

// What the file system says about a location at one moment, symbolic links followed.
class UnixFileInfo {
  public:
    // Asks the file system. A path that leads through something that is no directory names nothing, as one whose last
    // component is missing. Throws a file error when the answer cannot be had.
    explicit UnixFileInfo(FileLocation const& location);

    bool Exists() const { return found_.has_value(); }
    bool IsDirectory() const { return found_ && S_ISDIR(found_->st_mode); }

  private:
    std::optional<struct stat> found_;
};

}  // namespace UnixPlatform

using UnixPlatform::FileLocation;
using UnixPlatform::FileName;
using UnixPlatform::UnixFileInfo;

// The location with that text, byte for byte: an empty or relative one is made, too, and its use refused or allowed
// where it is used.
FileLocation MakeFileLocation(UStringRef<UTF8> path);
