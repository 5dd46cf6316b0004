#pragma once

#include <cstdint>

namespace folioforge {

/// One glyph of a row as it is measured and drawn.
struct Glyph {
    std::uint32_t id = 0;   ///< Glyph id in its face; 0 draws the face's missing-glyph box.
    std::uint16_t face = 0; ///< Index of the face in the FontCascade.
    char32_t character = 0; ///< The character it stands for; 0 where it has none of its own.
    double advance = 0;     ///< Points at the cascade's size.
};

} // namespace folioforge
