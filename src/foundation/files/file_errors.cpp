#include "foundation/files/file_errors.h"

#include <cerrno>
#include <cstring>
#include <type_traits>
#include <typeinfo>

#include "foundation/files/file_location.h"

namespace {

// strerror_r comes in two forms: one returns the text, the other a status and the text in the buffer.
template <class Result>
Stringy TextOrFallback(Result result, char const* buffer, int errorNumber) {
    if constexpr (std::is_same_v<Result, int>)
        return result == 0 ? Stringy(buffer) : "Unknown error: " + std::to_string(errorNumber);
    else
        return result;
}

Stringy PlatformErrorText(int errorNumber) {
    char buffer[256] = {};
    return TextOrFallback(strerror_r(errorNumber, buffer, sizeof buffer), buffer, errorNumber);
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

void ThrowFileError(UnixPlatform::FileLocation const& location, int errorNumber) {
    auto text = location.AsStringView();
    switch (errorNumber) {
        case EPERM:
        case EACCES:
            throw FilePermissionError(errorNumber, text);
        case ENOENT:
            throw FileNotFoundError(errorNumber, text);
        case EAGAIN:
            throw FileLockError(errorNumber, text);
        case ENOMEM:
        case ENFILE:
        case EMFILE:
            throw FileResourceError(errorNumber, text);
        case ENOTDIR:
        case ENAMETOOLONG:
            throw DirectoryNotFoundError(errorNumber, text);
        default:
            throw FileIOError(errorNumber, text);
    }
}
