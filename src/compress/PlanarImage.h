// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace folioforge {

/// The samples of one component, 8 bits each: rows without padding, top row first.
class Plane {
  public:
    /// Has no values until its rows are written.
    Plane(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_samples(std::make_unique_for_overwrite<std::uint8_t[]>(size())) {}

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] std::size_t size() const {
        return static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    }
    [[nodiscard]] const std::uint8_t *row(int y) const { return m_samples.get() + offset(y); }
    [[nodiscard]] std::uint8_t *row(int y) { return m_samples.get() + offset(y); }

  private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(m_width) * static_cast<std::size_t>(y);
    }

    int m_width;
    int m_height;
    std::unique_ptr<std::uint8_t[]> m_samples;
};

/// A picture with a plane for each component: grey; red, green and blue; or four inks. As JPEG
/// keeps it, see toJpegColor(), planes 1 and 2 hold the chroma and may be smaller than the picture.
struct PlanarImage {
    int width = 0;  ///< Pixels.
    int height = 0; ///< Pixels.
    std::vector<Plane> planes;

    PlanarImage(int imageWidth, int imageHeight)
        : width(imageWidth)
        , height(imageHeight) {}

    [[nodiscard]] int components() const { return static_cast<int>(planes.size()); }
    /// Adds `components` planes of the picture's size.
    void addPlanes(int components) {
        for (int i = 0; i < components; ++i) {
            planes.emplace_back(width, height);
        }
    }
};

/// Whether plane `index` of `components` in JPEG's own form holds chroma, which the eye sees less
/// sharply than the brightness.
inline bool isColor(int index, int components) {
    return components >= 3 && (index == 1 || index == 2);
}

/// Turns plain components into those that JPEG keeps (ITU-T T.871, 7): RGB into YCbCr, CMYK into
/// YCCK, which is YCbCr of the inverted first three inks. Grey stays. All planes are of one size.
void toJpegColor(PlanarImage &image);

} // namespace folioforge
