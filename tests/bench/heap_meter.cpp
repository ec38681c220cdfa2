#include "heap_meter.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

bool m_measuring = false;
long long m_used = 0;
long long m_peak = 0;

void Count(void* block, int sign) {
    if (!m_measuring) return;
    m_used += sign * static_cast<long long>(malloc_usable_size(block));
    m_peak = std::max(m_peak, m_used);
}

}  // namespace

namespace HeapMeter {

void* Allocate(std::size_t size) {
    auto block = std::malloc(size);
    Count(block, 1);
    return block;
}

void* Reallocate(void* block, std::size_t size) {
    Count(block, -1);
    block = std::realloc(block, size);
    Count(block, 1);
    return block;
}

void Free(void* block) {
    Count(block, -1);
    std::free(block);
}

void Start() {
    m_used = m_peak = 0;
    m_measuring = true;
}

long long Stop() {
    m_measuring = false;
    return m_peak;
}

}  // namespace HeapMeter

void* operator new(std::size_t size) {
    if (auto block = HeapMeter::Allocate(size)) return block;
    throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
    HeapMeter::Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    HeapMeter::Free(block);
}
