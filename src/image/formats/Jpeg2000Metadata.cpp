// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Jpeg2000.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Exif.h"
#include "image/IccProfile.h"

#include <algorithm>
#include <cmath>

namespace folioforge {

namespace {

constexpr QByteArrayView kCodestreamStart("\xFF\x4F");
constexpr quint32 kMaxPixels = 0x7FFFFFFF;

void readImageHeaderBox(const FileView &content, Jpeg2000Metadata &metadata) {
    const QByteArray bytes = content.readExactly(0, 14);
    metadata.header.height = static_cast<int>(std::min(bigEndianAt<quint32>(bytes, 0), kMaxPixels));
    metadata.header.width = static_cast<int>(std::min(bigEndianAt<quint32>(bytes, 4), kMaxPixels));
    metadata.components = bigEndianAt<quint16>(bytes, 8);
    metadata.bitsField = bigEndianAt<uchar>(bytes, 10);
}

void readColorBox(const FileView &content, Jpeg2000Metadata &metadata) {
    const QByteArray bytes = content.readExactly(0, content.size());
    const auto method = bigEndianAt<uchar>(bytes, 0);
    if (method == 1 && metadata.enumeratedColor == 0) {
        constexpr quint32 kYcc = 18;
        const auto color = bigEndianAt<quint32>(bytes, 3);
        metadata.enumeratedColor = static_cast<int>(std::min(color, kMaxPixels));
        metadata.isYcc = color == kYcc;
    } else if (method == 2 || method == 3) {
        metadata.iccProfile = bytes.mid(3);
    }
}

void readChannelBox(const FileView &content, Jpeg2000Metadata &metadata) {
    const QByteArray bytes = content.readExactly(0, content.size());
    const int count = bigEndianAt<quint16>(bytes, 0);
    int colors = 0;
    for (int i = 0; i < count; ++i) {
        const auto type = bigEndianAt<quint16>(bytes, 2 + 6 * i + 2);
        const auto color = bigEndianAt<quint16>(bytes, 2 + 6 * i + 4);
        const auto channel = bigEndianAt<quint16>(bytes, 2 + 6 * i);
        colors += type == 0 && color > 0 && color < count ? 1 : 0;
        constexpr int kNone = 65535;
        metadata.isReordered = metadata.isReordered ||
                               (type == 0 && color > 0 && color != kNone && color != channel + 1);
        if ((type == 1 || type == 2) && metadata.alphaChannel < 0) {
            metadata.alphaChannel = channel;
            metadata.isPremultiplied = type == 2;
        }
    }
    if (metadata.alphaChannel >= 0 && colors == count - 1) {
        metadata.alphaChannel = colors; // The decoder brings the colours to the front.
    }
}

/// A component mapping box: which component or column of the palette each channel shows.
void readMappingBox(const FileView &content, Jpeg2000Metadata &metadata) {
    constexpr qsizetype kEntry = 4;
    const QByteArray bytes = content.readExactly(0, content.size());
    for (qsizetype i = 0; (i + 1) * kEntry <= bytes.size(); ++i) {
        const bool hasPalette = bigEndianAt<uchar>(bytes, i * kEntry + 2) == 1;
        const qsizetype shown = hasPalette ? bigEndianAt<uchar>(bytes, i * kEntry + 3)
                                           : bigEndianAt<quint16>(bytes, i * kEntry);
        metadata.isReordered = metadata.isReordered || shown != i;
    }
}

/// A resolution box: numerators, denominators and powers of ten of pixels a metre.
void readResolutionBox(const FileView &content, Jpeg2000Metadata &metadata) {
    const QByteArray bytes = content.readExactly(0, 10);
    const auto dpi = [&](int fraction, int exponent) {
        const auto denominator = bigEndianAt<quint16>(bytes, fraction + 2);
        return denominator == 0
                   ? 0.0
                   : bigEndianAt<quint16>(bytes, fraction) / double(denominator) *
                         std::pow(10.0, bigEndianAt<qint8>(bytes, exponent)) * kMetresPerInch;
    };
    metadata.header.verticalDpi = dpi(0, 8);
    metadata.header.horizontalDpi = dpi(4, 9);
}

void readExifBox(const FileView &content, Jpeg2000Metadata &metadata) {
    constexpr qint64 kMaxExifBytes = 1 << 20;
    if (content.read(0, 16) == "JpgTiffExif->JP2") {
        metadata.header.orientation = readExif(content.read(16, kMaxExifBytes)).orientation;
    }
}

void readBoxes(const FileView &file, int depth, Jpeg2000Metadata &metadata);

void readBox(const Jpeg2000Box &box, int depth, Jpeg2000Metadata &metadata) {
    if (box.type == "jp2h" || box.type == "res ") {
        readBoxes(box.content, depth + 1, metadata);
    } else if (box.type == "ihdr") {
        readImageHeaderBox(box.content, metadata);
    } else if (box.type == "colr") {
        readColorBox(box.content, metadata);
    } else if (box.type == "cdef") {
        readChannelBox(box.content, metadata);
    } else if (box.type == "cmap") {
        readMappingBox(box.content, metadata);
    } else if (box.type == "jp2c" && metadata.codestreamAt < 0) {
        metadata.codestreamAt = box.next - box.content.size();
        metadata.codestreamBytes = box.content.size();
    } else if (box.type == "bpcc") {
        metadata.bitsField = Jpeg2000Metadata::kBitsDiffer;
    } else if (box.type == "pclr") {
        metadata.hasPalette = true;
    } else if (box.type == "resd" || (box.type == "resc" && metadata.header.horizontalDpi == 0)) {
        readResolutionBox(box.content, metadata); // How it is meant to be shown counts more.
    } else if (box.type == "uuid") {
        readExifBox(box.content, metadata);
    }
}

void readBoxes(const FileView &file, int depth, Jpeg2000Metadata &metadata) {
    constexpr int kMaxDepth = 2; // Boxes in boxes without end would exhaust the stack.
    if (depth > kMaxDepth) {
        return;
    }
    Jpeg2000Boxes boxes(file);
    while (const auto box = boxes.next()) {
        readBox(*box, depth, metadata);
    }
}

/// The size marker, which is the first after the start of a codestream.
void readSizeMarker(const FileView &file, Jpeg2000Metadata &metadata) {
    constexpr qint64 kMarkerBytes = 42;
    const QByteArray bytes = file.readExactly(0, kMarkerBytes + 1);
    const auto extent = [&](int end, int start) {
        const qint64 size =
            qint64(bigEndianAt<quint32>(bytes, end)) - qint64(bigEndianAt<quint32>(bytes, start));
        return static_cast<int>(std::clamp<qint64>(size, 0, kMaxPixels));
    };
    metadata.isCodestream = true;
    metadata.codestreamAt = 0;
    metadata.codestreamBytes = file.size();
    metadata.header.width = extent(8, 16);
    metadata.header.height = extent(12, 20);
    metadata.components = bigEndianAt<quint16>(bytes, 40);
    metadata.bitsField = bigEndianAt<uchar>(bytes, 42);
}

/// Two or four components of which nothing says what the last is.
void guessOpacity(Jpeg2000Metadata &metadata) {
    const bool hasSpare =
        metadata.components == 2 || (metadata.components == 4 && metadata.maxColors() == 3);
    if (metadata.alphaChannel < 0 && hasSpare && !metadata.hasPalette) {
        metadata.alphaChannel = metadata.components - 1;
        metadata.guessesAlpha = true;
    }
}

} // namespace

Jpeg2000Boxes::Jpeg2000Boxes(const FileView &file)
    : m_file(file)
    , m_at(file.read(0, 2) == kCodestreamStart ? file.size() : 0) {}

std::optional<Jpeg2000Box> Jpeg2000Boxes::next() {
    qint64 header = 8;
    const QByteArray lead = m_file.read(m_at, header);
    if (lead.size() < header) {
        return std::nullopt;
    }
    qint64 length = bigEndianAt<quint32>(lead, 0);
    const qint64 at = m_at;
    if (length == 1) {
        header = 16;
        length = static_cast<qint64>(
            std::min<quint64>(bigEndianAt<quint64>(m_file.readExactly(at + 8, 8), 0),
                              std::numeric_limits<qint64>::max() / 2));
    } else if (length == 0) {
        length = m_file.size() - at; // The last box may leave its length to the file.
    }
    if (length < header) {
        throw Error(Reasons::tr("The JPEG 2000 file is damaged"));
    }
    // A codestream that was cut short still shows what is there.
    m_at = at + std::min(length, m_file.size() - at);
    return Jpeg2000Box{lead.sliced(4), at, m_file.part(at + header, m_at - at - header), m_at};
}

int Jpeg2000Metadata::maxColors() const {
    constexpr int kCmyk = 12;
    const bool hasInkProfile = !fittingProfile(iccProfile, ImageColor::Cmyk).isEmpty();
    return enumeratedColor == kCmyk || (enumeratedColor == 0 && hasInkProfile) ? 4 : 3;
}

bool Jpeg2000Metadata::needsDecoding() const {
    return isReordered || alphaChannel >= 0 || components == 2 || components > maxColors();
}

std::vector<FileSlice> jpeg2000Extras(const FileView &file) {
    std::vector<FileSlice> extras;
    Jpeg2000Boxes boxes(file);
    while (const auto box = boxes.next()) {
        if (box->type == "uuid" || box->type == "xml " || box->type == "uinf") {
            extras.push_back({box->at, box->next - box->at});
        }
    }
    return extras;
}

Jpeg2000Metadata readJpeg2000Metadata(const FileView &file) {
    Jpeg2000Metadata metadata;
    if (file.read(0, 2) == kCodestreamStart) {
        readSizeMarker(file, metadata);
    } else {
        readBoxes(file, 0, metadata);
    }
    if (metadata.components == 0) {
        throw Error(Reasons::tr("The JPEG 2000 file holds no picture"));
    }
    guessOpacity(metadata);
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

} // namespace folioforge
