#include "image/QtImage.h"

#include "error/Error.h"
#include "image/ImageHeader.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>

#include <QtEndian>

#include <algorithm>

namespace folioforge {

namespace {

/// Qt refuses images over 128 MB unless told: the bound on pixels is this project's, four bytes
/// for each.
void setAllocationLimit() {
    constexpr qint64 kMegabyte = 1 << 20;
    QImageReader::setAllocationLimit(static_cast<int>(kMaxImagePixels * 4 / kMegabyte) + 1);
}

/// Rows of a QImage are padded to four bytes; a PDF's are not.
QByteArray packedRows(const QImage &image, qsizetype stride) {
    QByteArray rows(image.height() * stride, Qt::Uninitialized);
    for (int y = 0; y < image.height(); ++y) {
        std::copy_n(image.constScanLine(y), stride, rows.data() + y * stride);
    }
    return rows;
}

bool isOpaque(const QList<QRgb> &colors) {
    return std::ranges::all_of(colors, [](QRgb color) { return qAlpha(color) == 0xFF; });
}

bool isGray(const QList<QRgb> &colors) {
    return std::ranges::all_of(colors, [](QRgb color) {
        return qRed(color) == qGreen(color) && qGreen(color) == qBlue(color);
    });
}

AlphaPlane paletteAlpha(const QByteArray &indexes, const QList<QRgb> &colors) {
    AlphaPlane plane{8, indexes};
    for (char &value : plane.samples) {
        const auto index = static_cast<uchar>(value);
        value = static_cast<char>(index < colors.size() ? qAlpha(colors.at(index)) : 0xFF);
    }
    return plane;
}

void takeIndexed(const QImage &image, Raster &raster) {
    const QList<QRgb> colors = image.colorTable();
    raster.samples = packedRows(image, image.width());
    if (!isOpaque(colors)) {
        raster.alpha = paletteAlpha(raster.samples, colors);
    }
    if (isGray(colors)) {
        raster.color = ImageColor::Gray;
        for (char &value : raster.samples) {
            const auto index = static_cast<uchar>(value);
            value = static_cast<char>(index < colors.size() ? qRed(colors.at(index)) : 0);
        }
        return;
    }
    raster.color = ImageColor::Indexed;
    for (const QRgb color : colors) {
        raster.palette.append(static_cast<char>(qRed(color)));
        raster.palette.append(static_cast<char>(qGreen(color)));
        raster.palette.append(static_cast<char>(qBlue(color)));
    }
}

/// One bit where it is black and white; false where the two colours are others.
bool takeBilevel(const QImage &image, Raster &raster) {
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    const QList<QRgb> colors = mono.colorTable();
    constexpr QRgb kBlack = qRgb(0, 0, 0);
    constexpr QRgb kWhite = qRgb(255, 255, 255);
    const bool blackFirst = colors == QList<QRgb>{kBlack, kWhite};
    if (!blackFirst && colors != QList<QRgb>{kWhite, kBlack}) {
        return false;
    }
    raster.bits = 1;
    raster.color = ImageColor::Gray;
    raster.samples = packedRows(mono, rowBytes(mono.width(), 1, 1));
    if (!blackFirst) {
        raster.decode = {1, 0};
    }
    return true;
}

void takeGray(const QImage &image, Raster &raster) {
    const bool deep = image.format() == QImage::Format_Grayscale16;
    raster.color = ImageColor::Gray;
    raster.bits = deep ? 16 : 8;
    raster.samples = packedRows(image, raster.stride());
    if (deep) {
        auto *samples = reinterpret_cast<quint16 *>(raster.samples.data());
        qToBigEndian<quint16>(samples, raster.samples.size() / 2, samples);
    }
}

/// The image with a palette where it has no more than 256 colours: Qt reads some files that have
/// one (GIF, icons) into full colour. Null where there are more.
QImage withPalette(const QImage &image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    QImage indexed(argb.size(), QImage::Format_Indexed8);
    QHash<QRgb, uchar> numbers;
    QList<QRgb> colors;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        uchar *target = indexed.scanLine(y);
        for (int x = 0; x < argb.width(); ++x) {
            if (x > 0 && source[x] == source[x - 1]) {
                target[x] = target[x - 1];
                continue;
            }
            auto number = numbers.constFind(source[x]);
            if (number == numbers.constEnd()) {
                if (colors.size() == 256) {
                    return {};
                }
                number = numbers.insert(source[x], static_cast<uchar>(colors.size()));
                colors.append(source[x]);
            }
            target[x] = *number;
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

void takeColor(const QImage &image, Raster &raster) {
    if (const QImage indexed = withPalette(image); !indexed.isNull()) {
        takeIndexed(indexed, raster);
        return;
    }
    raster.color = ImageColor::Rgb;
    if (!image.hasAlphaChannel()) {
        raster.samples = packedRows(image.convertToFormat(QImage::Format_RGB888), raster.stride());
        return;
    }
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
    raster.samples = allocateRows(raster.height, raster.stride());
    raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
    char *color = raster.samples.data();
    char *alpha = raster.alpha->samples.data();
    for (int y = 0; y < rgba.height(); ++y) {
        const uchar *source = rgba.constScanLine(y);
        for (int x = 0; x < rgba.width(); ++x, source += 4) {
            color = std::copy_n(source, 3, color);
            *alpha++ = static_cast<char>(source[3]);
        }
    }
}

} // namespace

QImage readWithQt(QByteArray bytes, const char *format) {
    setAllocationLimit();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(false);
    QImage image = reader.read();
    if (image.isNull()) {
        throw Error(QStringLiteral("The image cannot be read: %1").arg(reader.errorString()));
    }
    return image;
}

Raster rasterOf(const QImage &image) {
    Raster raster;
    raster.width = image.width();
    raster.height = image.height();
    const bool mono =
        image.format() == QImage::Format_Mono || image.format() == QImage::Format_MonoLSB;
    if (mono && takeBilevel(image, raster)) {
        return raster;
    }
    if (mono) {
        takeIndexed(image.convertToFormat(QImage::Format_Indexed8), raster);
    } else if (image.format() == QImage::Format_Indexed8) {
        takeIndexed(image, raster);
    } else if (image.format() == QImage::Format_Grayscale8 ||
               image.format() == QImage::Format_Grayscale16) {
        takeGray(image, raster);
    } else {
        takeColor(image, raster);
    }
    return raster;
}

} // namespace folioforge
