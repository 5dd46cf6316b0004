// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace folioforge {

/// A bilevel picture as Group 4 data (ITU-T T.6).
struct Group4 {
    std::string data;
    bool blackIs1 = false; ///< The parameter of that name that gives the bits back as they were.
};

/// Encodes `height` rows of `width` bits, each row from a new byte on, the first pixel in the
/// highest bit. Throws std::bad_alloc.
Group4 encodeGroup4(std::string rows, int width, int height);

} // namespace folioforge
