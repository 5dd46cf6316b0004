// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>

// Asked at run time, so that the tests themselves are the same objects in both builds and a
// compiler cache compiles them once.

namespace folioforge::test {

/// Whether the code under test runs under AddressSanitizer.
bool isSanitized();

/// Bytes that its allocator has given out; 0 without it.
std::size_t sanitizedBytes();

} // namespace folioforge::test
