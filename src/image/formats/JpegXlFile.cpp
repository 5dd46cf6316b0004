// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegXlFile.h"

#include "image/Exif.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/JpegXlDecoder.h"

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace folioforge {

namespace {

/// Hands over the type of each box and no more than `limit` bytes of what it holds, of those whose
/// type is one of `types`.
void forEachBox(const FileView &file, std::initializer_list<QByteArrayView> types, qsizetype limit,
                const std::function<void(QByteArrayView, QByteArrayView)> &visit) {
    JpegXlDecoder decoder(file, JXL_DEC_BOX);
    JxlBoxType type{};
    const QByteArrayView name(type, sizeof type);
    QByteArray content;
    JxlDecoderStatus status = JXL_DEC_ERROR;
    do {
        status = decoder.step();
        if (!content.isEmpty()) {
            content.chop(static_cast<qsizetype>(jxl().ReleaseBoxBuffer(decoder.get())));
            visit(name, content);
            content.clear();
        }
        if (status == JXL_DEC_BOX &&
            jxl().GetBoxType(decoder.get(), type, JXL_TRUE) == JXL_DEC_SUCCESS &&
            std::ranges::find(types, name) != types.end()) {
            content = QByteArray(limit, '\0');
            jxl().SetBoxBuffer(decoder.get(), reinterpret_cast<uint8_t *>(content.data()),
                               static_cast<size_t>(limit));
        }
        // The rest of a long box is passed over.
    } while (status == JXL_DEC_BOX || status == JXL_DEC_BOX_NEED_MORE_OUTPUT);
}

void requireReadable(const FileView &file) {
    JpegXlDecoder decoder(file, JXL_DEC_BASIC_INFO);
    if (decoder.step() != JXL_DEC_BASIC_INFO) {
        throw damagedJpegXl();
    }
    static_cast<void>(decoder.checkedInfo());
}

} // namespace

ImageHeader readJpegXlHeader(const FileView &file) {
    constexpr qsizetype kEnough = 1 << 16; // More than an EXIF block of a JPEG can have.
    JpegXlDecoder decoder(file, JXL_DEC_BASIC_INFO);
    if (decoder.step() != JXL_DEC_BASIC_INFO) {
        throw damagedJpegXl();
    }
    ImageHeader header = headerOf(decoder.basicInfo());
    forEachBox(file, {"Exif"}, kEnough, [&](QByteArrayView, QByteArrayView box) {
        const ExifMetadata exif = readExif(exifBlockOf(box));
        header.horizontalDpi = exif.horizontalDpi;
        header.verticalDpi = exif.verticalDpi;
    });
    return checkedHeader(header);
}

void addJpegXlBlocks(const FileView &file, DescriptionBlocks &blocks) {
    forEachBox(file, {"Exif", "xml "}, kMaxDescriptionBytes,
               [&](QByteArrayView type, QByteArrayView box) {
                   if (type == "Exif") {
                       takeFirst(blocks.exif, [&] { return descriptionInExif(exifBlockOf(box)); });
                   } else {
                       takeFirst(blocks.xmp, [&] { return box.toByteArray(); });
                   }
               });
}

qint64 countJpegXlFrames(const FileView &file) {
    JpegXlDecoder decoder(file, JXL_DEC_BASIC_INFO | JXL_DEC_FRAME);
    qint64 frames = 0;
    JxlDecoderStatus status = decoder.step();
    for (; status == JXL_DEC_BASIC_INFO || status == JXL_DEC_FRAME; status = decoder.step()) {
        if (status == JXL_DEC_FRAME) {
            ++frames;
        } else if (decoder.basicInfo().have_animation == JXL_FALSE) {
            break;
        }
    }
    return std::max<qint64>(frames, 1);
}

QByteArray originalJpeg(const FileView &file) {
    constexpr qsizetype kFirst = 1 << 20;
    const qint64 most = 16 * file.size() + 64 * qint64(kFirst);
    requireReadable(file); // The events of libjxl 0.7 do not tell of it on the way to a JPEG.
    JpegXlDecoder decoder(file, JXL_DEC_JPEG_RECONSTRUCTION | JXL_DEC_FULL_IMAGE);
    QByteArray jpeg;
    const auto grow = [&] {
        const auto used =
            jpeg.size() - static_cast<qsizetype>(jxl().ReleaseJPEGBuffer(decoder.get()));
        jpeg.resize(std::max(kFirst, 2 * jpeg.size()));
        jxl().SetJPEGBuffer(decoder.get(), reinterpret_cast<uint8_t *>(jpeg.data()) + used,
                            static_cast<size_t>(jpeg.size() - used));
    };
    JxlDecoderStatus status = decoder.step();
    while (jpeg.size() < most &&
           (status == JXL_DEC_JPEG_RECONSTRUCTION || status == JXL_DEC_JPEG_NEED_MORE_OUTPUT)) {
        grow();
        status = decoder.step();
    }
    if (status != JXL_DEC_FULL_IMAGE || jpeg.isEmpty()) {
        return {};
    }
    jpeg.chop(static_cast<qsizetype>(jxl().ReleaseJPEGBuffer(decoder.get())));
    return jpeg;
}

} // namespace folioforge
