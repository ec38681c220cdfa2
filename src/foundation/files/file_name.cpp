#include "foundation/files/file_name.h"

#include "foundation/files/file_errors.h"

namespace UnixPlatform {

namespace {

constexpr std::size_t longest_name = 255;

FileName Combine(std::string_view first, std::string_view second) {
    return FileName::CombineNames(first.data(), first.size(), second.data(), second.size());
}

}  // namespace

void FileName::Set(char const* bytes, std::size_t length) {
    std::string_view name(bytes, length);
    if (name.empty() || name.size() > longest_name) throw IllegalFileNameLength();
    if (name == "." || name == ".." || name.find('/') != name.npos) throw IllegalFileName(0, name);
    name_ = name;
}

FileName FileName::CombineNames(char const* first, std::size_t firstLength, char const* second,
                                std::size_t secondLength) {
    if (firstLength >= longest_name || secondLength >= longest_name - firstLength) throw IllegalFileName();
    FileName joined;
    joined.name_.reserve(firstLength + secondLength);
    joined.name_.append(first, firstLength).append(second, secondLength);
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

}  // namespace UnixPlatform
