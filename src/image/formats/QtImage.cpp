#include "image/formats/QtImage.h"

#include "error/Error.h"
#include "image/ImageHeader.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

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

/// Pixels as indexes, a byte each, of colours.
struct Paletted {
    QByteArray indexes;
    QList<QRgb> colors;
};

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

void takeIndexed(Paletted &&picture, Raster &raster) {
    const QList<QRgb> &colors = picture.colors;
    raster.samples = std::move(picture.indexes);
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
    const QImage mono = granted(image.convertToFormat(QImage::Format_Mono));
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

/// The image with a palette where it has no more than 256 colours: Qt reads some files that have
/// one (GIF, icons) into full colour. Nothing where there are more.
std::optional<Paletted> withPalette(const QImage &image) {
    const QRgb opacity = image.hasAlphaChannel() ? 0 : 0xFF000000U;
    Paletted paletted{allocateRows(image.height(), image.width()), {}};
    QHash<QRgb, uchar> numbers;
    auto *target = reinterpret_cast<uchar *>(paletted.indexes.data());
    for (int y = 0; y < image.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x, ++target) {
            if (x > 0 && source[x] == source[x - 1]) {
                *target = target[-1];
                continue;
            }
            const QRgb color = source[x] | opacity;
            auto number = numbers.constFind(color);
            if (number == numbers.constEnd()) {
                if (paletted.colors.size() == 256) {
                    return std::nullopt;
                }
                number = numbers.insert(color, static_cast<uchar>(paletted.colors.size()));
                paletted.colors.append(color);
            }
            *target = *number;
        }
    }
    return paletted;
}

/// From 32 bits a pixel, by hand: Qt shares the work of converting a large image among threads, and
/// waits for ever where the system gives it none.
void takeColor(const QImage &image, Raster &raster) {
    if (auto paletted = withPalette(image)) {
        takeIndexed(std::move(*paletted), raster);
        return;
    }
    raster.color = ImageColor::Rgb;
    raster.samples = allocateRows(raster.height, raster.stride());
    char *color = raster.samples.data();
    char *alpha = nullptr;
    if (image.hasAlphaChannel()) {
        raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
        alpha = raster.alpha->samples.data();
    }
    for (int y = 0; y < raster.height; ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < raster.width; ++x) {
            *color++ = static_cast<char>(qRed(source[x]));
            *color++ = static_cast<char>(qGreen(source[x]));
            *color++ = static_cast<char>(qBlue(source[x]));
            if (alpha) {
                *alpha++ = static_cast<char>(qAlpha(source[x]));
            }
        }
    }
}

} // namespace

QImage granted(QImage image) {
    if (image.isNull()) {
        throw std::bad_alloc();
    }
    return image;
}

QImage readWithQt(QByteArray bytes, const char *format) {
    setAllocationLimit();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    QImage image = reader.read();
    if (image.isNull()) {
        // Qt calls it damage, too, when it gets no memory.
        if (!size.isEmpty()) {
            granted(QImage(size, QImage::Format_RGB32));
        }
        throw Error(u"The image cannot be read: %1"_s.arg(reader.errorString()));
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
    if (mono || image.format() == QImage::Format_Indexed8) {
        const QImage indexed = granted(image.convertToFormat(QImage::Format_Indexed8));
        takeIndexed({packedRows(indexed, indexed.width()), indexed.colorTable()}, raster);
    } else {
        const bool hasOpacity = image.hasAlphaChannel();
        takeColor(granted(image.convertToFormat(hasOpacity ? QImage::Format_ARGB32
                                                           : QImage::Format_RGB32)),
                  raster);
    }
    return raster;
}

} // namespace folioforge
