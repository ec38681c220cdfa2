#pragma once

#include <exception>

// The common base of every failure that this program throws itself.
//
// Most failures are empty classes derived directly from it and are told apart by type. The message, where one is
// given, is borrowed and must live as long as the program (a literal).
class DebuggableException : public std::exception {
  public:
    DebuggableException() = default;
    explicit DebuggableException(char const* message) : message_(message) {}

    char const* what() const noexcept override { return message_; }

  private:
    char const* message_ = "";
};
