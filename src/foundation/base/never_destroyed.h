#pragma once

#include <utility>

// A T made of the arguments that lives until the process is gone: for process-wide state, which threads that still run
// and code that ends the process from anywhere may use while static objects are being destroyed.
//
//     UIMessageQueue& readQ = NeverDestroyed<UIMessageQueue>();
//
// Each call makes another one. What T's constructor throws passes through.
template <class T, class... Arguments>
T& NeverDestroyed(Arguments&&... arguments) {
    return *new T(std::forward<Arguments>(arguments)...);
}
