#pragma once

#include <cstdint>

namespace folioforge {

/// The `character` of a glyph that stands for none, such as half of a surrogate pair.
inline constexpr char32_t kNoCharacter = 0x110000;

/// One glyph of a row as it is measured and drawn.
struct Glyph {
    std::uint16_t id = 0;   ///< Glyph id in its face; 0 draws the face's missing-glyph box.
    std::uint16_t face = 0; ///< Index of the face in the FontCascade.
    char32_t character = kNoCharacter; ///< The character it stands for.
    double advance = 0;                ///< Points at the cascade's size.

    bool operator==(const Glyph &) const = default;
};

} // namespace folioforge
