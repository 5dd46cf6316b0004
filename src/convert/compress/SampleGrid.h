#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace folioforge {

/// What the components of a grid mean; the last two are JPEG's own forms of RGB and CMYK, kept
/// because converting there and back would only cost time and exactness.
enum class SampleKind { Gray, Rgb, Cmyk, YCbCr, Ycck };

/// Decoded samples of 8 bits, components interleaved, rows without padding, top row first.
struct SampleGrid {
    int width = 0;  ///< Pixels.
    int height = 0; ///< Pixels.
    SampleKind kind = SampleKind::Gray;
    std::vector<std::uint8_t> samples;

    [[nodiscard]] int components() const {
        switch (kind) {
        case SampleKind::Gray:
            return 1;
        case SampleKind::Rgb:
        case SampleKind::YCbCr:
            return 3;
        default:
            return 4;
        }
    }
    [[nodiscard]] std::size_t rowBytes() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(components());
    }
    [[nodiscard]] const std::uint8_t *row(int y) const {
        return samples.data() + rowBytes() * static_cast<std::size_t>(y);
    }
    [[nodiscard]] std::uint8_t *row(int y) {
        return samples.data() + rowBytes() * static_cast<std::size_t>(y);
    }
    /// Makes room for the samples of width x height pixels.
    void allocate() { samples.resize(rowBytes() * static_cast<std::size_t>(height)); }
};

/// The kind of plain samples with this many components: 1, 3 or 4.
inline SampleKind plainKind(int components) {
    return components == 1   ? SampleKind::Gray
           : components == 3 ? SampleKind::Rgb
                             : SampleKind::Cmyk;
}

} // namespace folioforge
