// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/IccProfile.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/Jpeg2000.h"
#include "image/formats/OpenJpeg.h"

#include <QtEndian>

#include <utility>

namespace folioforge {

namespace {

constexpr QByteArrayView kFileSignature("\0\0\0\x0CjP  \r\n\x87\n", 12);
constexpr QByteArrayView kCodestreamSignature("\xFF\x4F\xFF\x51", 4);

void append(QByteArray &bytes, quint32 number) {
    const quint32 big = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&big), sizeof big);
}

QByteArray box(const char *type, const QByteArray &content) {
    QByteArray bytes;
    append(bytes, static_cast<quint32>(content.size() + 8));
    return bytes + type + content;
}

/// The boxes that make a JP2 file of a bare codestream, which a PDF may not hold (ISO 32000-1,
/// 7.4.9).
QByteArray fileHeaderFor(const Jpeg2000Metadata &metadata, qint64 codestreamBytes) {
    constexpr quint32 kSrgb = 16;
    constexpr quint32 kGray = 17;
    QByteArray imageHeader;
    append(imageHeader, static_cast<quint32>(metadata.header.height));
    append(imageHeader, static_cast<quint32>(metadata.header.width));
    imageHeader.append('\0').append(static_cast<char>(metadata.components));
    imageHeader.append(static_cast<char>(metadata.bitsField));
    imageHeader.append("\x07\0\0", 3);
    QByteArray color("\x01\0\0", 3);
    append(color, metadata.components == 1 ? kGray : kSrgb);
    QByteArray bytes = kFileSignature.toByteArray();
    bytes += box("ftyp", QByteArray("jp2 \0\0\0\0jp2 ", 12));
    bytes += box("jp2h", box("ihdr", imageHeader) + box("colr", color));
    append(bytes, static_cast<quint32>(codestreamBytes + 8));
    return bytes + "jp2c";
}

ImageColor colorOf(int channels) {
    return channels == 1 ? ImageColor::Gray : channels == 3 ? ImageColor::Rgb : ImageColor::Cmyk;
}

/// A profile of the file is named in the PDF too, because viewers look for it there; without one
/// they take the colour space from the image's own boxes.
void describeColor(const Jpeg2000Metadata &metadata, PdfImage &image) {
    image.color = ImageColor::FromJpx;
    const QByteArray profile = fittingProfile(metadata.iccProfile, colorOf(metadata.components));
    if (!profile.isEmpty() && !metadata.hasPalette) {
        image.color = colorOf(metadata.components);
        image.iccProfile = profile;
    }
}

bool recognises(QByteArrayView head) {
    return head.startsWith(kFileSignature) || head.startsWith(kCodestreamSignature);
}

ImageHeader readHeader(const FileView &file) {
    return readJpeg2000Metadata(file).header;
}

/// Whether a decoder would begin with the file; true where there is none to ask.
bool canBeOpened(const FileView &file, const Jpeg2000Metadata &metadata,
                 const Jpeg2000Structure &structure) {
    return !OpenJpegPicture::isThere() || openJpeg2000(file, metadata, structure);
}

PdfImage toPdfImage(const FileView &file) {
    const Jpeg2000Metadata metadata = readJpeg2000Metadata(file);
    const Jpeg2000Structure structure = readJpeg2000Structure(file, metadata);
    if (metadata.needsDecoding() || !structure.isWhole || structure.isSubsampled ||
        !canBeOpened(file, metadata, structure)) {
        Jpeg2000Pixels pixels = decodeJpeg2000(file, metadata, structure);
        PdfImage image = encodeRaster(std::move(pixels.raster), metadata.header);
        image.warnings = std::move(pixels.warnings);
        return image;
    }
    PdfImage image;
    image.header = metadata.header;
    image.width = metadata.header.width;
    image.height = metadata.header.height;
    image.filter = ImageFilter::Jpx;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    describeColor(metadata, image);
    if (metadata.isCodestream) {
        image.data = fileHeaderFor(metadata, file.size()) + file.readExactly(0, file.size());
    } else {
        image.slices = {{file.offset(), file.size()}};
    }
    return image;
}

} // namespace

ImageFormat jpeg2000Format() {
    return {ImageKind::Jpeg2000,
            {QLatin1StringView("jp2")},
            recognises,
            readHeader,
            toPdfImage,
            jpeg2000Extras,
            nullptr,
            addJpeg2000Blocks};
}

} // namespace folioforge
