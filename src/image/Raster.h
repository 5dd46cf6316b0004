// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"

#include <QByteArray>
#include <QtEndian>

#include <optional>
#include <vector>

namespace folioforge {

/// One sample for each pixel: the opacity of an image, 0 transparent to full opaque.
struct AlphaPlane {
    int bits = 8; ///< 8, or 16 with the high byte first.
    QByteArray samples;
};

/// Decoded pixels in the order in which a PDF holds them: rows from the top, each padded to whole
/// bytes, samples interleaved, 16-bit samples with the high byte first.
struct Raster {
    int width = 0;
    int height = 0;
    int bits = 8; ///< Per sample: 1, 2, 4, 8 or 16.
    ImageColor color = ImageColor::Rgb;
    QByteArray samples;
    QByteArray palette;         ///< RGB triples for ImageColor::Indexed.
    QByteArray iccProfile;      ///< Dropped where it does not fit the colour.
    std::vector<double> decode; ///< The Decode array; empty for the default.
    std::optional<AlphaPlane> alpha;

    /// Bytes of one row of `samples`.
    [[nodiscard]] qsizetype stride() const;
};

/// Samples of a pixel of this colour: 1 grey or palette, 3 RGB or Lab, 4 CMYK.
int channelCount(ImageColor color);

/// Bytes of a row of `width` pixels with `channels` samples of `bits` each.
qsizetype rowBytes(int width, int channels, int bits);

/// Bytes for `height` rows of `stride` bytes, filled with zero; throws std::bad_alloc when
/// there is no memory for them.
QByteArray allocateRows(int height, qsizetype stride);

/// Puts the sample `index` of rows as a Raster of 8 or 16 bits has them.
inline void putSample(QByteArray &samples, qsizetype index, int value, int bits) {
    auto *bytes = reinterpret_cast<uchar *>(samples.data());
    if (bits == 16) {
        qToBigEndian(static_cast<quint16>(value), bytes + 2 * index);
    } else {
        bytes[index] = static_cast<uchar>(value);
    }
}

/// Throws Error where `compressed` bytes cannot hold `raw` bytes even at `ratio` to one: the file
/// is damaged, or made to exhaust the machine.
void requirePlausible(qint64 raw, qint64 compressed, qint64 ratio);

/// The same for the formats in which a plain picture takes next to no bytes: 100,000,000 pixels
/// pass in any file.
void requirePlausibleArea(const ImageHeader &header, qint64 compressed);

/// Whether all pixels have the same colour, which is what decoders make of no data. A corner of
/// `guessed` pixels in each direction does not count. For samples of 8 or 16 bits.
bool isPlain(const Raster &raster, int guessed = 0);

/// Divides premultiplied colour by its opacity, in place. Colour and opacity have the same bits
/// (8 or 16).
void unpremultiply(Raster &raster);

/// Compresses the pixels without loss, opacity as a soft mask. Opacity that is full everywhere is
/// dropped, opacity that is all or nothing takes one bit. One-bit images take CCITT group 4 where
/// that is smaller. `header` is what the file says of the picture.
PdfImage encodeRaster(Raster raster, const ImageHeader &header = {});

/// The soft mask of an opacity plane; null when it is full everywhere.
std::unique_ptr<PdfImage> encodeAlpha(const AlphaPlane &alpha, int width, int height);

} // namespace folioforge
