#pragma once

#include "error/Error.h"

namespace folioforge {

/// What std::bad_alloc becomes in words, where it ends.
inline Error notEnoughMemory() {
    return Error(QStringLiteral("There is not enough memory"));
}

} // namespace folioforge
