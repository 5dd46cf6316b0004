// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/formats/ArgbImage.h"
#include "image/formats/GifFile.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

constexpr Argb kTransparent = 0x00FFFFFF;

/// The colours of a table. Numbers behind its end are transparent, all are black without one.
std::array<Argb, 256> colorsOf(const ColorMapObject *map, int transparent) {
    std::array<Argb, 256> colors;
    colors.fill(map != nullptr ? kTransparent : 0);
    for (int i = 0; map != nullptr && i < map->ColorCount; ++i) {
        const GifColorType &color = map->Colors[i];
        colors[static_cast<size_t>(i)] = argb(color.Red, color.Green, color.Blue);
    }
    if (transparent >= 0) {
        colors[static_cast<size_t>(transparent)] &= ~kOpaque;
    }
    return colors;
}

ImageHeader headerOf(const GifFile &gif) {
    ImageHeader header;
    header.width = gif->SWidth;
    header.height = gif->SHeight;
    if (header.width == 0 || header.height == 0) {
        // The first picture gives what the screen leaves open.
        const GifImageDesc &picture = gif->Image;
        header.width = header.width == 0 ? picture.Left + picture.Width : header.width;
        header.height = header.height == 0 ? picture.Top + picture.Height : header.height;
    }
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    const GifFile gif(file);
    if (gif->SWidth == 0 || gif->SHeight == 0) {
        gif.goToPicture();
    }
    return headerOf(gif);
}

/// What stands where no picture does.
Argb groundOf(const GifFile &gif, int transparent) {
    const int number = transparent >= 0 ? transparent : gif->SBackGroundColor & 0xFF;
    return colorsOf(gif->SColorMap, transparent)[static_cast<size_t>(number)];
}

/// What stands where the first picture does not reach, or where its data ends early.
Argb backgroundOf(const GifFile &gif, int transparent) {
    const GifImageDesc &picture = gif->Image;
    const bool coversAll = picture.Left == 0 && picture.Top == 0 && picture.Width >= gif->SWidth &&
                           picture.Height >= gif->SHeight;
    return coversAll ? 0 : groundOf(gif, transparent);
}

/// The rows of a picture in the order in which it stores them.
std::vector<int> storedRows(const GifImageDesc &picture) {
    std::vector<int> rows;
    const auto addEvery = [&](int step, int first) {
        for (int y = first; y < picture.Height; y += step) {
            rows.push_back(y);
        }
    };
    if (picture.Interlace) {
        addEvery(8, 0);
        addEvery(8, 4);
        addEvery(4, 2);
        addEvery(2, 1);
    } else {
        addEvery(1, 0);
    }
    return rows;
}

/// Draws the picture where it lies on the screen; gives how many of its rows cannot be read. Of a
/// further picture, what is transparent leaves what stands there.
qint64 drawPicture(const GifFile &gif, int transparent, ArgbImage &screen, bool isFurther = false) {
    const GifImageDesc &picture = gif->Image;
    const auto colors =
        colorsOf(picture.ColorMap != nullptr ? picture.ColorMap : gif->SColorMap, transparent);
    std::vector<GifPixelType> line(static_cast<size_t>(picture.Width));
    const auto columns = std::clamp<qsizetype>(screen.width - picture.Left, 0, picture.Width);
    int read = 0;
    for (const int y : storedRows(picture)) {
        if (DGifGetLine(gif.handle(), line.data(), picture.Width) != GIF_OK) {
            break;
        }
        ++read;
        if (picture.Top + y < screen.height && columns > 0) {
            Argb *target = screen.row(picture.Top + y) + picture.Left;
            std::transform(line.begin(), line.begin() + columns, target, target,
                           [&](GifPixelType number, Argb below) {
                               return !isFurther              ? colors[number]
                                      : number == transparent ? below
                                                              : colors[number] | kOpaque;
                           });
        }
    }
    return picture.Height - read;
}

/// The screen that the pictures of a file are drawn on, one after another.
class GifPictureReader : public PictureReader {
  public:
    explicit GifPictureReader(FileView file)
        : m_file(std::move(file))
        , m_gif(m_file) {}

    std::optional<PdfImage> next() override {
        return std::exchange(m_hasBegun, true) ? further() : first();
    }

    PdfImage first() {
        constexpr qint64 kLzwRatio = 3000;
        m_control = m_gif.goToPicture();
        m_header = headerOf(m_gif);
        const qint64 pixels = qint64(m_header.width) * m_header.height;
        requirePlausible(pixels, m_file.size(), kLzwRatio);
        const int transparent = m_control.TransparentColor;
        m_screen = {m_header.width, m_header.height, transparent >= 0, {}};
        m_screen.pixels.assign(static_cast<size_t>(pixels), backgroundOf(m_gif, transparent));
        return draw(false);
    }

    /// The pictures behind the one that was read.
    [[nodiscard]] qint64 countFurther() const { return m_gif.countFurtherPictures(); }

  private:
    std::optional<PdfImage> further() {
        const GifImageDesc drawn = m_gif->Image;
        const bool mayGoOn = !m_isCutOff && !m_screen.pixels.empty();
        const auto control = mayGoOn ? m_gif.goToNextPicture() : std::nullopt;
        if (!control) {
            return std::nullopt;
        }
        if (!m_screen.hasAlpha) {
            std::ranges::for_each(m_screen.pixels, [](Argb &pixel) { pixel |= kOpaque; });
            m_screen.hasAlpha = true;
        }
        dispose(drawn);
        m_control = *control;
        return draw(true);
    }

    PdfImage draw(bool isFurther) {
        const bool comesBack = isFurther && m_control.DisposalMode == DISPOSE_PREVIOUS;
        m_before = comesBack ? m_screen.pixels : std::vector<Argb>();
        const qint64 missing = drawPicture(m_gif, m_control.TransparentColor, m_screen, isFurther);
        m_isCutOff = missing > 0;
        if (missing > 0 && missing == m_gif->Image.Height) {
            GifFile::fail();
        }
        PdfImage image = encodeRaster(rasterOf(m_screen), m_header);
        if (missing > 0) {
            image.warnings.push_back(cutOffPicture(missing, m_gif->Image.Height));
        }
        return image;
    }

    /// What becomes of the picture at `drawn` before the next one.
    void dispose(const GifImageDesc &drawn) {
        if (!m_before.empty()) {
            m_screen.pixels = std::move(m_before);
        } else if (m_control.DisposalMode == DISPOSE_PREVIOUS) {
            std::ranges::fill(m_screen.pixels, 0); // Before the first there was nothing.
        } else if (m_control.DisposalMode == DISPOSE_BACKGROUND) {
            const Argb ground = groundOf(m_gif, m_control.TransparentColor) |
                                (m_control.TransparentColor >= 0 ? 0 : kOpaque);
            const auto columns = std::clamp<qsizetype>(m_screen.width - drawn.Left, 0, drawn.Width);
            for (int y = drawn.Top;
                 columns > 0 && y < std::min(drawn.Top + drawn.Height, m_screen.height); ++y) {
                std::fill_n(m_screen.row(y) + drawn.Left, columns, ground);
            }
        }
    }

    FileView m_file;
    GifFile m_gif;
    ImageHeader m_header;
    GraphicsControlBlock m_control = kNoGifControl; ///< Of the picture that was drawn last.
    ArgbImage m_screen;
    std::vector<Argb> m_before; ///< What stood there before it; empty where that does not return.
    bool m_hasBegun = false;
    bool m_isCutOff = false;
};

PdfImage toPdfImage(const FileView &file) {
    GifPictureReader reader(file);
    PdfImage image = reader.first();
    addMorePictures(image.warnings, reader.countFurther(), kFurtherPictures);
    return image;
}

std::unique_ptr<PictureReader> readAll(const FileView &file) {
    return std::make_unique<GifPictureReader>(file);
}

bool recognises(QByteArrayView head) {
    return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

} // namespace

ImageFormat gifFormat() {
    return {ImageKind::Gif, {QLatin1StringView("gif")}, recognises, readHeader, toPdfImage, nullptr,
            readAll};
}

} // namespace folioforge
