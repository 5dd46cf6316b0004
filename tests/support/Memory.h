// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>

namespace folioforge::test {

/// While it lives, one allocation of this thread fails as for a lack of memory. A program that uses
/// it has an operator new of its own.
class FailingMemory {
  public:
    /// Of the allocations from now on, the one after `spared` fails.
    explicit FailingMemory(int spared);
    ~FailingMemory();
    FailingMemory(const FailingMemory &) = delete;
    FailingMemory &operator=(const FailingMemory &) = delete;
};

/// Bytes that this thread has asked of operator new so far, given back or not: a measure of work
/// that is the same on a busy machine. A program that uses it has an operator new of its own.
std::size_t allocatedBytes();

} // namespace folioforge::test
