// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"

#include "error/Error.h"
#include "support/ByteOrder.h"
#include "support/Files.h"
#include "support/Places.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <tiffio.h>

#include <array>

using namespace Qt::StringLiterals;

namespace folioforge::test {

namespace {

quint32 crcOf(const QByteArray &bytes) {
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~crc;
}

/// Rows without filters get the number of no filter before each, as PNG has it.
QByteArray withFilterNumbers(const QByteArray &rows, qsizetype stride) {
    QByteArray out;
    for (qsizetype at = 0; at + stride <= rows.size(); at += stride) {
        out += '\0' + rows.mid(at, stride);
    }
    return qCompress(out).mid(4);
}

QImage decodedFlate(const PdfImage &image) {
    const int channels = image.color == ImageColor::Rgb    ? 3
                         : image.color == ImageColor::Cmyk ? 4
                                                           : 1;
    const char type = image.color == ImageColor::Rgb       ? '\x02'
                      : image.color == ImageColor::Cmyk    ? '\x06'
                      : image.color == ImageColor::Indexed ? '\x03'
                                                           : '\0';
    QByteArray rows = dataOf(image);
    if (image.predictor == 1) {
        const qsizetype stride =
            (qsizetype(image.width) * channels * image.bitsPerComponent + 7) / 8;
        rows = withFilterNumbers(unzipped(rows), stride);
    }
    QByteArray header =
        big(static_cast<quint32>(image.width)) + big(static_cast<quint32>(image.height));
    header.append(static_cast<char>(image.bitsPerComponent)).append(type).append(3, '\0');
    QByteArray png("\x89PNG\r\n\x1A\n", 8);
    png += pngChunk("IHDR", header);
    if (image.color == ImageColor::Indexed) {
        png += pngChunk("PLTE", image.palette);
    }
    png += pngChunk("IDAT", rows) + pngChunk("IEND", {});
    return QImage::fromData(png, "png");
}

/// A TIFF file of one strip by hand, read back with libtiff.
QImage decodedFax(const PdfImage &image) {
    const QTemporaryDir folder;
    const QByteArray data = dataOf(image);
    struct Entry {
        quint16 tag;
        quint16 type;
        quint32 value;
    };
    const std::array<Entry, 8> entries = {{{256, 4, quint32(image.width)},
                                           {257, 4, quint32(image.height)},
                                           {258, 3, 1},
                                           {259, 3, COMPRESSION_CCITTFAX4},
                                           {262, 3, image.ccittBlackIs1 ? 1U : 0U},
                                           {273, 4, 8},
                                           {278, 4, quint32(image.height)},
                                           {279, 4, quint32(data.size())}}};
    const auto append = [](QByteArray &bytes, auto number) {
        const auto little = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
    };
    QByteArray tiff("II*\0", 4);
    append(tiff, quint32(8 + data.size() + data.size() % 2));
    tiff += data + QByteArray(data.size() % 2, '\0');
    append(tiff, quint16(entries.size()));
    for (const Entry &entry : entries) {
        append(tiff, entry.tag);
        append(tiff, entry.type);
        append(tiff, quint32(1));
        append(tiff, entry.value);
    }
    append(tiff, quint32(0));
    const QString path = writeFile(folder.filePath(u"fax.tif"_s), tiff);
    QImage picture(image.width, image.height, QImage::Format_RGB32);
    TIFF *tif = TIFFOpen(QFile::encodeName(path).constData(), "r");
    const bool read =
        tif != nullptr && TIFFReadRGBAImageOriented(tif, static_cast<uint32_t>(image.width),
                                                    static_cast<uint32_t>(image.height),
                                                    reinterpret_cast<uint32_t *>(picture.bits()),
                                                    ORIENTATION_TOPLEFT, 1) == 1;
    if (tif != nullptr) {
        TIFFClose(tif);
    }
    return read ? picture.rgbSwapped() : QImage();
}

} // namespace

QByteArray rgbRows(const PdfImage &image) {
    const QImage picture = decoded(image).convertToFormat(QImage::Format_RGB888);
    const qsizetype stride = qsizetype{3} * picture.width();
    QByteArray rows;
    for (int y = 0; y < picture.height(); ++y) {
        rows.append(reinterpret_cast<const char *>(picture.constScanLine(y)), stride);
    }
    return rows;
}

QByteArray pngChunk(const char *type, const QByteArray &content) {
    const QByteArray body = type + content;
    return big(static_cast<quint32>(content.size())) + body + big(crcOf(body));
}

QString imageFile(const QString &name) {
    return inSource(u"tests/data/image/"_s) + name;
}

QByteArray bytesOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray dataOf(const PdfImage &image) {
    if (image.slices.empty()) {
        return image.data;
    }
    const QByteArray file = bytesOf(image.source->version().path);
    QByteArray data;
    for (const FileSlice &slice : image.slices) {
        data += file.mid(slice.offset, slice.length);
    }
    return data;
}

QByteArray unzipped(const QByteArray &bytes) {
    constexpr quint32 kEnough = 1 << 22;
    return qUncompress(big(kEnough) + bytes);
}

QImage decoded(const PdfImage &image) {
    QImage picture;
    if (image.filter == ImageFilter::Dct) {
        picture = QImage::fromData(dataOf(image), "jpeg");
    } else if (image.filter == ImageFilter::CcittFax) {
        picture = decodedFax(image);
    } else {
        picture = decodedFlate(image);
    }
    if (!image.decode.empty() && image.decode.front() == 1.0) {
        if (picture.colorCount() > 0) {
            picture.convertTo(QImage::Format_RGB32); // Else numbers of colours are inverted.
        }
        picture.invertPixels();
    }
    return picture;
}

QStringList warningsOf(const PdfImage &image) {
    QStringList texts;
    for (const Warning &warning : image.warnings) {
        texts += warning.name() + u": "_s + warning.text;
    }
    return texts;
}

std::vector<PdfImage> picturesOf(const QString &path, Warnings *warnings) {
    std::vector<PdfImage> pictures;
    const Warnings given =
        forEachPicture(path, SystemCalls::system(), SourceMetadata::Keep,
                       [&](PdfImage picture) { pictures.push_back(std::move(picture)); });
    if (warnings != nullptr) {
        *warnings = given;
    }
    return pictures;
}

QString refusalOf(const QString &path) {
    try {
        toPdfImage(path);
        return {};
    } catch (const Error &error) {
        return error.reason();
    }
}

} // namespace folioforge::test
