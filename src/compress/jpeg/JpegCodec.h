// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"
#include "error/Error.h"
#include "image/formats/JpegEscape.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace folioforge {

/// As install(), but a warning about damaged data counts as an error.
jpeg_error_mgr *installStrictly(JpegEscape &escape);

/// What `escape` has caught.
Error damagedJpeg(const JpegEscape &escape);

/// The rows of one component that libjpeg takes or gives at once, padded to whole blocks.
class Band {
  public:
    Band(std::size_t width, std::size_t height)
        : m_width(width)
        , m_samples(width * height) {
        for (std::size_t y = 0; y < height; ++y) {
            m_rows.push_back(m_samples.data() + y * width);
        }
    }

    [[nodiscard]] int height() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] JSAMPARRAY rows() { return m_rows.data(); }

    /// Lets rows() be those of `plane` from row `top` on, where they need no padding.
    void aimAt(Plane &plane, int top) {
        for (int y = 0; y < height(); ++y) {
            const bool isThere = needsNoPadding(plane) && top + y < plane.height();
            m_rows[static_cast<std::size_t>(y)] =
                isThere ? plane.row(top + y) : m_samples.data() + y * m_width;
        }
    }
    /// Copies the rows that had to be padded to `plane`, from row `top` on.
    void copyTo(Plane &plane, int top) const {
        if (needsNoPadding(plane)) {
            return;
        }
        for (int y = top; y < std::min(top + height(), plane.height()); ++y) {
            std::memcpy(plane.row(y), rowAt(y - top), static_cast<std::size_t>(plane.width()));
        }
    }
    /// Copies the other way; the last column and row go on into the padding.
    void copyFrom(const Plane &plane, int top) {
        const auto width = static_cast<std::size_t>(plane.width());
        for (int y = top; y < top + height(); ++y) {
            const std::uint8_t *row = plane.row(std::min(y, plane.height() - 1));
            JSAMPROW to = rowAt(y - top);
            std::memcpy(to, row, width);
            std::memset(to + width, row[width - 1], m_width - width);
        }
    }

  private:
    [[nodiscard]] bool needsNoPadding(const Plane &plane) const {
        return static_cast<std::size_t>(plane.width()) == m_width;
    }
    [[nodiscard]] JSAMPROW rowAt(int y) const { return m_rows[static_cast<std::size_t>(y)]; }

    std::size_t m_width;
    std::vector<JSAMPLE> m_samples;
    std::vector<JSAMPROW> m_rows;
};

/// A band for each component, in the form that libjpeg's functions for raw data take.
class Bands {
  public:
    void add(std::size_t width, std::size_t height) { m_bands.emplace_back(width, height); }
    [[nodiscard]] JSAMPIMAGE rows() {
        m_rows.clear();
        for (Band &band : m_bands) {
            m_rows.push_back(band.rows());
        }
        return m_rows.data();
    }
    /// `band` counts the bands from the top.
    void aimAt(PlanarImage &image, int band) {
        for (std::size_t i = 0; i < m_bands.size(); ++i) {
            m_bands[i].aimAt(image.planes[i], band * m_bands[i].height());
        }
    }
    void copyTo(PlanarImage &image, int band) const {
        for (std::size_t i = 0; i < m_bands.size(); ++i) {
            m_bands[i].copyTo(image.planes[i], band * m_bands[i].height());
        }
    }
    void copyFrom(const PlanarImage &image, int band) {
        for (std::size_t i = 0; i < m_bands.size(); ++i) {
            m_bands[i].copyFrom(image.planes[i], band * m_bands[i].height());
        }
    }

  private:
    std::vector<Band> m_bands;
    std::vector<JSAMPARRAY> m_rows;
};

} // namespace folioforge
