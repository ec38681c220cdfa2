#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/base/const_data.h"

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
    static FileName CombineNames(char const* first, std::size_t firstLength, char const* second,
                                 std::size_t secondLength);

    bool IsEmpty() const { return name_.empty(); }
    std::size_t size() const { return name_.size(); }
    // Valid until this name changes.
    std::string_view AsStringView() const { return name_; }

    // Byte by byte, unsigned.
    bool operator==(FileName const&) const = default;
    auto operator<=>(FileName const&) const = default;

  private:
    Stringy name_;
};

// Join, each as CombineNames does.
FileName operator+(FileName const& first, FileName const& second);
FileName operator+(FileName const& first, char const* second);
FileName operator+(char const* first, FileName const& second);

}  // namespace UnixPlatform

using FileName = UnixPlatform::FileName;
