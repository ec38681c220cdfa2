#pragma once

#include <cstddef>

// Measures how much heap a piece of work takes at its peak, over what was in use before it. It counts what goes through
// operator new, and through Allocate and Free, which libraries that bring their own allocation are given.
namespace HeapMeter {

void* Allocate(std::size_t size);
void* Reallocate(void* block, std::size_t size);
void Free(void* block);

void Start();
// The peak in bytes, as the allocator rounded the blocks. Ends the measurement; at other times nothing is counted.
long long Stop();

template <class Work>
double PeakMiB(Work const& work) {
    Start();
    work();
    return static_cast<double>(Stop()) / (1 << 20);
}

}  // namespace HeapMeter
