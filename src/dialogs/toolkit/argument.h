#pragma once

#include <initializer_list>
#include <type_traits>

#include "dialogs/toolkit/widget.h"

// One resource name and its value, as a widget is given them.
//
// The constructors admit exactly the kinds of value that the resources of this program's widgets hold; any other type
// does not compile. A string is borrowed for the call: labels, titles and texts are copied by their widgets, a list's
// rows are not (see list_rows.h).
class Argument {
  public:
    // Pixels, counts and positions. The toolkit keeps sizes in 16 bits: see ClampedSize.
    Argument(char const* name, int value) : name_(name), value_(value) {}
    Argument(char const* name, bool value) : name_(name), value_(value) {}
    Argument(char const* name, char const* value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    Argument(char const* name, char const* const* value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    Argument(char const* name, Widget value) : name_(name), value_(reinterpret_cast<long>(value)) {}
    template <class E>
    requires std::is_enum_v<E> Argument(char const* name, E value) : name_(name), value_(static_cast<long>(value)) {}
    template <class T>
    requires(!std::is_enum_v<T>) Argument(char const* name, T value)
    = delete;

    char const* Name() const { return name_; }
    // The value as the toolkit's argument type holds it.
    long Value() const { return value_; }

  private:
    char const* name_;
    long value_;
};

using Arguments = std::initializer_list<Argument>;
