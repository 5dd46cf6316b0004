// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Exif.h"
#include "image/IccProfile.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/JpegPixels.h"
#include "image/formats/JpegSegments.h"
#include "image/formats/JpegStructure.h"

#include <algorithm>
#include <map>
#include <utility>

namespace folioforge {

namespace {

/// What the segments before the first scan say.
struct JpegMetadata {
    ImageHeader header;
    JpegFrame frame;
    bool hasJfif = false;
    bool hasJfifDensity = false;
    bool hasAdobe = false;
    std::map<int, QByteArray> iccChunks;

    [[nodiscard]] QByteArray iccProfile() const {
        QByteArray profile;
        for (const auto &[number, chunk] : iccChunks) {
            profile += chunk;
        }
        return profile;
    }
};

void readJfif(QByteArrayView segment, JpegMetadata &metadata) {
    if (!segment.startsWith(QByteArrayView("JFIF\0", 5)) || segment.size() < 12) {
        return;
    }
    metadata.hasJfif = true;
    const auto unit = bigEndianAt<uchar>(segment, 7);
    const auto horizontal = bigEndianAt<quint16>(segment, 8);
    const auto vertical = bigEndianAt<quint16>(segment, 10);
    if ((unit != 1 && unit != 2) || horizontal == 0 || vertical == 0) {
        return;
    }
    constexpr double kCentimetresPerInch = 2.54;
    const double scale = unit == 2 ? kCentimetresPerInch : 1;
    metadata.hasJfifDensity = true;
    metadata.header.horizontalDpi = horizontal * scale;
    metadata.header.verticalDpi = vertical * scale;
}

void readExifSegment(QByteArrayView segment, JpegMetadata &metadata) {
    if (!segment.startsWith(kExifLead)) {
        return;
    }
    const ExifMetadata exif = readExif(segment);
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

void readSegment(const JpegSegment &segment, JpegMetadata &metadata) {
    if (isFrameHeader(segment.marker) && metadata.frame.process == 0) {
        metadata.frame = readJpegFrame(segment);
    } else if (segment.marker == App0) {
        readJfif(segment.content, metadata);
    } else if (segment.marker == App1) {
        readExifSegment(segment.content, metadata);
    } else if (segment.marker == App2) {
        readIccChunk(segment.content, metadata);
    } else if (segment.marker == App14 && segment.content.startsWith("Adobe")) {
        metadata.hasAdobe = true;
    }
}

JpegMetadata readMetadata(JpegSegments &segments) {
    JpegMetadata metadata;
    std::optional<JpegSegment> segment;
    do {
        segment = segments.next();
        if (!segment) {
            throw Error(Reasons::tr("The JPEG file ends before its picture begins"));
        }
        readSegment(*segment, metadata);
    } while (segment->marker != Sos && segment->marker != Eoi);
    if (metadata.frame.process == 0 || segment->marker == Eoi) {
        throw Error(Reasons::tr("The JPEG file ends before its picture begins"));
    }
    metadata.header.width = metadata.frame.width;
    metadata.header.height = metadata.frame.height;
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

ImageColor colorOf(const JpegFrame &frame) {
    switch (frame.components.size()) {
    case 1:
        return ImageColor::Gray;
    case 3:
        return ImageColor::Rgb;
    case 4:
        return ImageColor::Cmyk;
    default:
        throw Error(Reasons::tr("The JPEG file has %1 colour components, which is no colour "
                                "that a PDF can show")
                        .arg(frame.components.size()));
    }
}

/// DCTDecode holds Huffman-coded baseline, extended and progressive frames. It may hold
/// arithmetic-coded ones too, but few readers know them.
bool isProcessOfPdf(const JpegFrame &frame) {
    return frame.process <= Sof2;
}

void requireKnownProcess(const JpegFrame &frame) {
    const bool isKnown = isProcessOfPdf(frame) || frame.process == Sof9 || frame.process == Sof10;
    if (!isKnown || frame.precision != 8) {
        throw Error(
            Reasons::tr("The JPEG file is of a kind that no PDF can hold (lossless, hierarchical "
                        "or more than 8 bits)"));
    }
}

/// Whether the components are RGB though they are not marked: readers take three for YCbCr unless
/// Adobe's mark or the PDF says otherwise.
bool isPlainRgb(const JpegMetadata &metadata) {
    return !metadata.hasAdobe && !metadata.hasJfif && isNamedRgb(metadata.frame);
}

/// Adobe's programs store ink inverted.
std::vector<double> decodeArrayOf(const JpegMetadata &metadata) {
    if (metadata.frame.components.size() == 4 && metadata.hasAdobe) {
        return {1, 0, 1, 0, 1, 0, 1, 0};
    }
    return {};
}

/// The image without its data.
PdfImage describe(const JpegMetadata &metadata) {
    PdfImage image;
    image.header = metadata.header;
    image.width = metadata.header.width;
    image.height = metadata.header.height;
    image.color = colorOf(metadata.frame);
    image.filter = ImageFilter::Dct;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.iccProfile = fittingProfile(metadata.iccProfile(), image.color);
    image.decode = decodeArrayOf(metadata);
    image.isPlainRgb = isPlainRgb(metadata);
    return image;
}

/// Decodes what cannot go in as it is.
PdfImage decodedImage(const FileView &file, const JpegMetadata &metadata) {
    // Codes of a bit or two for a block of 64 pixels are the least that a file can take.
    constexpr qint64 kMaxPacked = 4000;
    requirePlausible(qint64(metadata.header.width) * metadata.header.height *
                         qint64(metadata.frame.components.size()),
                     file.size(), kMaxPacked);
    JpegPixels pixels = decodeJpeg(file);
    pixels.raster.iccProfile = metadata.iccProfile();
    pixels.raster.decode = decodeArrayOf(metadata);
    PdfImage image = encodeRaster(std::move(pixels.raster), metadata.header);
    image.warnings = std::move(pixels.warnings);
    return image;
}

/// The whole file but for bytes that belong to no segment.
std::vector<FileSlice> ownBytes(const FileView &file, const JpegStructure &structure) {
    std::vector<FileSlice> strays = structure.strays;
    for (FileSlice &stray : strays) {
        stray.offset += file.offset();
    }
    return slicesWithout({{file.offset(), file.size()}}, strays);
}

bool recognises(QByteArrayView head) {
    return head.startsWith("\xFF\xD8\xFF");
}

ImageHeader readHeader(const FileView &file) {
    JpegSegments segments(file);
    return readMetadata(segments).header;
}

PdfImage toPdfImage(const FileView &file) {
    JpegSegments segments(file);
    const JpegMetadata metadata = readMetadata(segments);
    requireKnownProcess(metadata.frame);
    PdfImage image = describe(metadata);
    const JpegStructure structure = readJpegStructure(file, segments, JpegWalk::Thrifty);
    const bool isKeepable =
        isProcessOfPdf(metadata.frame) && (structure.isWhole || structure.lacksEnd);
    if (!isKeepable || structure.isDoubtful || structure.lacksEnd) {
        PdfImage decoded = decodedImage(file, metadata);
        if (!isKeepable || !decoded.warnings.empty()) {
            return decoded;
        }
    }
    if (structure.lacksEnd) {
        image.data = file.readExactly(0, file.size()) + "\xFF\xD9";
    } else {
        image.slices = ownBytes(file, structure);
    }
    return image;
}

std::vector<FileSlice> metadata(const FileView &file) {
    JpegSegments segments(file);
    return readJpegStructure(file, segments, JpegWalk::Whole).metadata;
}

} // namespace

ImageFormat jpegFormat() {
    return {ImageKind::Jpeg, {QLatin1StringView("jpg"), QLatin1StringView("jpeg")},
            recognises,      readHeader,
            toPdfImage,      metadata,
            nullptr,         addJpegBlocks};
}

} // namespace folioforge
