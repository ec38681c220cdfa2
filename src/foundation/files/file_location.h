#pragma once

#include <string_view>

#include "foundation/base/const_data.h"
#include "foundation/files/file_name.h"
#include "foundation/text/ustring_ref.h"

namespace UnixPlatform {

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

    // Byte by byte, unsigned: two spellings of one path differ.
    bool operator==(FileLocation const&) const = default;
    auto operator<=>(FileLocation const&) const = default;

  private:
    Stringy path_;
};

}  // namespace UnixPlatform

using FileLocation = UnixPlatform::FileLocation;

// The location with that text, byte for byte: an empty or relative one is made, too, and its use refused or allowed
// where it is used.
FileLocation MakeFileLocation(UStringRef<UTF8> path);
