#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/formats/QtImage.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

bool isGif(QByteArrayView head) {
    return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

/// Where the first image of a GIF file begins: behind the colours and the extensions.
qsizetype firstFrameOf(QByteArrayView gif) {
    const auto byteAt = [gif](qsizetype at) { return littleEndianAt<quint8>(gif, at); };
    const int flags = byteAt(10);
    qsizetype at = 13 + ((flags & 0x80) != 0 ? qsizetype{6} << (flags & 7) : 0);
    while (byteAt(at) == '!') {
        at += 2;
        while (byteAt(at) != 0) {
            at += 1 + byteAt(at);
        }
        ++at;
    }
    if (byteAt(at) != ',') {
        throw Error(u"The file holds no image"_s);
    }
    return at;
}

ImageHeader readGifHeader(const FileView &file) {
    constexpr qint64 kFarthestFrame = 1 << 20;
    const QByteArray head = file.readExactly(0, 10);
    ImageHeader header;
    header.width = littleEndianAt<quint16>(head, 6);
    header.height = littleEndianAt<quint16>(head, 8);
    if (header.width == 0 || header.height == 0) {
        // The first image gives what the screen leaves open.
        const QByteArray start = file.read(0, kFarthestFrame);
        const qsizetype frame = firstFrameOf(start);
        const auto side = [&](int field) { return littleEndianAt<quint16>(start, frame + field); };
        header.width = header.width == 0 ? side(1) + side(5) : header.width;
        header.height = header.height == 0 ? side(3) + side(7) : header.height;
    }
    return checkedHeader(header);
}

PdfImage encodeGif(const FileView &file) {
    constexpr qint64 kLzwRatio = 3000;
    const ImageHeader header = readGifHeader(file);
    requirePlausible(qint64(header.width) * header.height, file.size(), kLzwRatio);
    return encodeRaster(rasterOf(readWithQt(file.readExactly(0, file.size()), "gif")), header);
}

} // namespace

ImageFormat gifFormat() {
    return {ImageKind::Gif, {QLatin1StringView("gif")}, isGif, readGifHeader, encodeGif};
}

} // namespace folioforge
