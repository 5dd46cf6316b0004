// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>

namespace folioforge::test {

/// Runs `action` to its end in a thread that may do no more with files than their permissions say,
/// even where the tests run as root.
void withoutRightsOfRoot(const std::function<void()> &action);

} // namespace folioforge::test
