// SPDX-License-Identifier: Apache-2.0

#include "support/Sanitizer.h"

#ifdef FOLIOFORGE_SANITIZED
// Not every compiler ships the header that declares it.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace folioforge::test {

bool isSanitized() {
#ifdef FOLIOFORGE_SANITIZED
    return true;
#else
    return false;
#endif
}

std::size_t sanitizedBytes() {
#ifdef FOLIOFORGE_SANITIZED
    return __sanitizer_get_current_allocated_bytes();
#else
    return 0;
#endif
}

} // namespace folioforge::test
