// SPDX-License-Identifier: Apache-2.0

#include "support/FailingMemory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace folioforge::test {

namespace {

constexpr int kNone = -1;
thread_local int g_spared = kNone; ///< How many allocations succeed before the one that fails.

} // namespace

FailingMemory::FailingMemory(int spared) {
    g_spared = spared;
}

FailingMemory::~FailingMemory() {
    g_spared = kNone;
}

} // namespace folioforge::test

void *operator new(std::size_t size) {
    using folioforge::test::g_spared;
    const bool fails = g_spared == 0;
    if (g_spared != folioforge::test::kNone) {
        --g_spared; // After the one that fails none does.
    }
    void *memory = fails ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (!memory) {
        throw std::bad_alloc();
    }
    return memory;
}

// What the library allocates this way it frees by the functions below.
void *operator new(std::size_t size, const std::nothrow_t & /*nothrow*/) noexcept {
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void *memory) noexcept {
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept {
    std::free(memory);
}
