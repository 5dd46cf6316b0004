// SPDX-License-Identifier: Apache-2.0

#pragma once

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

} // namespace folioforge::test
