// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/Exif.h"
#include "image/IccProfile.h"

#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

enum Marker : uchar {
    Sof0 = 0xC0,
    Sof2 = 0xC2,
    Dht = 0xC4,
    JpgReserved = 0xC8,
    Dac = 0xCC,
    Sof15 = 0xCF,
    Rst0 = 0xD0,
    Soi = 0xD8,
    Eoi = 0xD9,
    Sos = 0xDA,
    App0 = 0xE0,
    App1 = 0xE1,
    App2 = 0xE2,
    App14 = 0xEE,
};

/// What the segments before the first scan say.
struct JpegMetadata {
    ImageHeader header;
    uchar process = 0; ///< The marker of the frame header.
    int precision = 0; ///< Bits per sample.
    int components = 0;
    QByteArray componentIds;
    bool hasJfif = false;
    bool hasJfifDensity = false;
    bool hasAdobe = false;
    bool hasScan = false;
    std::map<int, QByteArray> iccChunks;

    [[nodiscard]] QByteArray iccProfile() const {
        QByteArray profile;
        for (const auto &[number, chunk] : iccChunks) {
            profile += chunk;
        }
        return profile;
    }
};

/// Reads the segments of a file through a window, so that the many small ones at the start take one
/// read.
class SegmentReader {
  public:
    explicit SegmentReader(const FileView &file)
        : m_file(file) {}

    QByteArrayView bytes(qint64 at, qint64 length) {
        if (at < m_start || at + length > m_start + m_window.size()) {
            constexpr qint64 kWindow = 16384;
            m_start = at;
            m_window = m_file.read(at, std::max(length, kWindow));
        }
        const QByteArrayView window(m_window);
        return window.sliced(at - m_start, std::min(length, m_start + window.size() - at));
    }

  private:
    const FileView &m_file;
    qint64 m_start = 0;
    QByteArray m_window;
};

bool isFrameHeader(uchar marker) {
    return marker >= Sof0 && marker <= Sof15 && marker != Dht && marker != JpgReserved &&
           marker != Dac;
}

bool hasNoLength(uchar marker) {
    return marker == 0x01 || (marker >= Rst0 && marker <= Eoi);
}

void readFrameHeader(QByteArrayView segment, uchar marker, JpegMetadata &metadata) {
    metadata.process = marker;
    metadata.precision = bigEndianAt<uchar>(segment, 0);
    metadata.header.height = bigEndianAt<quint16>(segment, 1);
    metadata.header.width = bigEndianAt<quint16>(segment, 3);
    metadata.components = bigEndianAt<uchar>(segment, 5);
    for (qsizetype at = 6; at < segment.size(); at += 3) {
        metadata.componentIds.append(segment[at]);
    }
}

void readJfif(QByteArrayView segment, JpegMetadata &metadata) {
    if (!segment.startsWith(QByteArrayView("JFIF\0", 5)) || segment.size() < 12) {
        return;
    }
    metadata.hasJfif = true;
    const auto unit = bigEndianAt<uchar>(segment, 7);
    if (unit != 1 && unit != 2) {
        return;
    }
    constexpr double kCentimetresPerInch = 2.54;
    const double scale = unit == 2 ? kCentimetresPerInch : 1;
    metadata.hasJfifDensity = true;
    metadata.header.horizontalDpi = bigEndianAt<quint16>(segment, 8) * scale;
    metadata.header.verticalDpi = bigEndianAt<quint16>(segment, 10) * scale;
}

void readExifSegment(QByteArrayView segment, JpegMetadata &metadata) {
    constexpr qsizetype kSignature = 6;
    if (!segment.startsWith(QByteArrayView("Exif\0\0", kSignature))) {
        return;
    }
    const ExifMetadata exif = readExif(segment.sliced(kSignature));
    metadata.header.orientation = exif.orientation;
    if (!metadata.hasJfifDensity) {
        metadata.header.horizontalDpi = exif.horizontalDpi;
        metadata.header.verticalDpi = exif.verticalDpi;
    }
}

void readIccChunk(QByteArrayView segment, JpegMetadata &metadata) {
    constexpr qsizetype kChunkHeader = 14;
    if (segment.startsWith(QByteArrayView("ICC_PROFILE\0", 12)) && segment.size() > kChunkHeader) {
        metadata.iccChunks[bigEndianAt<uchar>(segment, 12)] =
            segment.sliced(kChunkHeader).toByteArray();
    }
}

void readSegment(uchar marker, QByteArrayView segment, JpegMetadata &metadata) {
    if (isFrameHeader(marker) && metadata.process == 0) {
        readFrameHeader(segment, marker, metadata);
    } else if (marker == App0) {
        readJfif(segment, metadata);
    } else if (marker == App1) {
        readExifSegment(segment, metadata);
    } else if (marker == App2) {
        readIccChunk(segment, metadata);
    } else if (marker == App14 && segment.startsWith("Adobe")) {
        metadata.hasAdobe = true;
    }
}

JpegMetadata readMetadata(const FileView &file) {
    JpegMetadata metadata;
    SegmentReader reader(file);
    qint64 at = 2;
    while (!metadata.hasScan) {
        const QByteArrayView lead = reader.bytes(at, 4);
        if (lead.size() < 4) {
            throw Error(u"The JPEG file ends before its picture begins"_s);
        }
        const auto marker = bigEndianAt<uchar>(lead, 1);
        if (bigEndianAt<uchar>(lead, 0) != 0xFF) {
            throw Error(u"The JPEG file is damaged"_s);
        }
        if (marker == 0xFF || hasNoLength(marker)) {
            at += marker == 0xFF ? 1 : 2; // Any number of fill bytes may stand before a marker.
            continue;
        }
        const qint64 length = bigEndianAt<quint16>(lead, 2);
        const QByteArrayView segment = reader.bytes(at + 4, std::max<qint64>(length - 2, 0));
        metadata.hasScan = marker == Sos;
        readSegment(marker, segment, metadata);
        at += 2 + std::max<qint64>(length, 2);
    }
    if (metadata.process == 0 || at >= file.size()) {
        throw Error(u"The JPEG file ends before its picture begins"_s);
    }
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

ImageColor colorOf(const JpegMetadata &metadata) {
    switch (metadata.components) {
    case 1:
        return ImageColor::Gray;
    case 3:
        return ImageColor::Rgb;
    case 4:
        return ImageColor::Cmyk;
    default:
        throw Error(u"The JPEG file has %1 colour components, which is no colour "
                    "that a PDF can show"_s.arg(metadata.components));
    }
}

void requireProcessOfPdf(const JpegMetadata &metadata) {
    // DCTDecode holds Huffman-coded baseline, extended and progressive frames of eight bits.
    if (metadata.process > Sof2 || metadata.precision != 8) {
        throw Error(u"The JPEG file is of a kind that no PDF can hold (lossless, "
                    "arithmetic or more than 8 bits)"_s);
    }
}

bool recognises(QByteArrayView head) {
    return head.startsWith("\xFF\xD8\xFF");
}

ImageHeader readHeader(const FileView &file) {
    return readMetadata(file).header;
}

PdfImage toPdfImage(const FileView &file) {
    const JpegMetadata metadata = readMetadata(file);
    requireProcessOfPdf(metadata);
    PdfImage image;
    image.header = metadata.header;
    image.width = metadata.header.width;
    image.height = metadata.header.height;
    image.color = colorOf(metadata);
    image.filter = ImageFilter::Dct;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.iccProfile = fittingProfile(metadata.iccProfile(), image.color);
    if (image.color == ImageColor::Cmyk && metadata.hasAdobe) {
        image.decode = {1, 0, 1, 0, 1, 0, 1, 0}; // Adobe's programs store ink inverted.
    }
    // Readers take three components for YCbCr unless Adobe's mark or the PDF says otherwise.
    image.isPlainRgb = !metadata.hasAdobe && !metadata.hasJfif && metadata.componentIds == "RGB";
    image.slices = {{file.offset(), file.size()}};
    return image;
}

} // namespace

ImageFormat jpegFormat() {
    return {ImageKind::Jpeg,
            {QLatin1StringView("jpg"), QLatin1StringView("jpeg")},
            recognises,
            readHeader,
            toPdfImage};
}

} // namespace folioforge
