// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace folioforge {

/// Reads one JPEG image held in memory. Throws Error when the data is damaged, even where a decoder
/// could go on with guesses.
class JpegReader {
  public:
    /// Reads the header. `data` must outlive the reader. `colorTransform` is the PDF's parameter of
    /// that name (ISO 32000-1, 7.4.8), which counts only where the file has no Adobe marker.
    JpegReader(std::string_view data, std::optional<int> colorTransform);
    ~JpegReader();
    JpegReader(const JpegReader &) = delete;
    JpegReader &operator=(const JpegReader &) = delete;

    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    [[nodiscard]] int components() const;
    /// The quality, 1 to 100 on libjpeg's scale, whose luminance table is nearest to the file's.
    [[nodiscard]] int quality() const;
    /// Decodes to eighths/8 of the size (1 to 8), each side rounded up, in JPEG's own form.
    [[nodiscard]] PlanarImage decode(int eighths);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace folioforge
