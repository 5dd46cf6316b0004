// SPDX-License-Identifier: Apache-2.0

#include "support/Memory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

// Of AddressSanitizer, where it is linked.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,readability-identifier-naming)
__attribute__((weak)) void __lsan_disable();
__attribute__((weak)) void __lsan_enable();
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,readability-identifier-naming)
}

namespace folioforge::test {

namespace {

constexpr int kNone = -1;
thread_local int g_spared = kNone; ///< How many allocations succeed before the one that fails.
thread_local std::size_t g_allocated = 0;

/// Null where it fails.
void *allocate(std::size_t size) {
    g_allocated += size;
    const bool fails = g_spared == 0;
    if (g_spared != kNone) {
        --g_spared; // After the one that fails none does.
    }
    return fails ? nullptr : std::malloc(size == 0 ? 1 : size);
}

} // namespace

FailingMemory::FailingMemory(int spared) {
    if (__lsan_disable) {
        __lsan_disable(); // libqpdf loses the object that it has made when its holder fails.
    }
    g_spared = spared;
}

FailingMemory::~FailingMemory() {
    g_spared = kNone;
    if (__lsan_enable) {
        __lsan_enable();
    }
}

std::size_t allocatedBytes() {
    return g_allocated;
}

} // namespace folioforge::test

// All that give what the plain delete takes back: AddressSanitizer knows who gave what.
void *operator new(std::size_t size) {
    void *memory = folioforge::test::allocate(size);
    if (!memory) {
        throw std::bad_alloc();
    }
    return memory;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    return folioforge::test::allocate(size);
}

void operator delete(void *memory) noexcept {
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void *memory, const std::nothrow_t &) noexcept {
    std::free(memory);
}
