#include "foundation/files/file_errors.h"

#include <cerrno>
#include <cstring>
#include <type_traits>
#include <typeinfo>

namespace {

// strerror_r comes in two forms: one returns the text, the other a status and the text in the buffer.
template <class Result>
Stringy TextOrFallback(Result result, char const* buffer, int error_number) {
    if constexpr (std::is_same_v<Result, int>)
        return result == 0 ? Stringy(buffer) : "Unknown error: " + std::to_string(error_number);
    else
        return result;
}

Stringy PlatformErrorText(int error_number) {
    char buffer[256] = {};
    return TextOrFallback(strerror_r(error_number, buffer, sizeof buffer), buffer, error_number);
}

}  // namespace

char const* FileIOError::what() const noexcept {
    try {
        if (message_.empty()) message_ = MakeErrorMessage();
        return message_.c_str();
    } catch (...) {
        return "File error";
    }
}

Stringy FileIOError::MakeErrorMessage() const {
    Stringy message = Stringy("File error \"") + typeid(*this).name() + "\"";
    if (!location_.empty()) message += " on \"" + location_ + "\"";
    if (!other_.empty()) message += " and \"" + other_ + "\"";
    if (error_number_ != 0) message += ": " + PlatformErrorText(error_number_);
    return message;
}

void ThrowFileError(FileLocation const& location, int error_number) {
    auto text = location.AsStringView();
    switch (error_number) {
        case EPERM:
        case EACCES:
            throw FilePermissionError(error_number, text);
        case ENOENT:
            throw FileNotFoundError(error_number, text);
        case EAGAIN:
            throw FileLockError(error_number, text);
        case ENOMEM:
        case ENFILE:
        case EMFILE:
            throw FileResourceError(error_number, text);
        case ENOTDIR:
        case ENAMETOOLONG:
            throw DirectoryNotFoundError(error_number, text);
        default:
            throw FileIOError(error_number, text);
    }
}
