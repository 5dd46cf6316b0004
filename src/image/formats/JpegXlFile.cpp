// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegXlFile.h"

#include "image/Exif.h"
#include "image/formats/JpegXlDecoder.h"

#include <algorithm>
#include <utility>

namespace folioforge {

namespace {

/// What a box with an EXIF block holds; empty where the decoder is at another.
QByteArray beginExif(JxlDecoder *decoder) {
    constexpr qsizetype kEnough = 1 << 16; // More than an EXIF block of a JPEG can have.
    JxlBoxType type{};
    if (JxlDecoderGetBoxType(decoder, type, JXL_TRUE) != JXL_DEC_SUCCESS ||
        QByteArrayView(type, sizeof type) != "Exif") {
        return {};
    }
    QByteArray block(kEnough, '\0');
    JxlDecoderSetBoxBuffer(decoder, reinterpret_cast<uint8_t *>(block.data()),
                           static_cast<size_t>(block.size()));
    return block;
}

void readDensity(QByteArrayView box, ImageHeader &header) {
    if (!box.isEmpty()) {
        const ExifMetadata exif = readExifItem(box);
        header.horizontalDpi = exif.horizontalDpi;
        header.verticalDpi = exif.verticalDpi;
    }
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
    JpegXlDecoder decoder(file, JXL_DEC_BASIC_INFO | JXL_DEC_BOX);
    ImageHeader header;
    QByteArray exif;
    const auto endBox = [&] {
        exif.chop(static_cast<qsizetype>(JxlDecoderReleaseBoxBuffer(decoder.get())));
        readDensity(std::exchange(exif, {}), header);
    };
    const auto goesOn = [](JxlDecoderStatus status) {
        return status == JXL_DEC_BASIC_INFO || status == JXL_DEC_BOX ||
               status == JXL_DEC_BOX_NEED_MORE_OUTPUT; // The rest of a long box is passed over.
    };
    JxlDecoderStatus status = decoder.step();
    for (; goesOn(status); status = decoder.step()) {
        if (status == JXL_DEC_BASIC_INFO) {
            header.width = headerOf(decoder.basicInfo()).width;
            header.height = headerOf(decoder.basicInfo()).height;
        } else {
            endBox();
        }
        if (status == JXL_DEC_BOX) {
            exif = beginExif(decoder.get());
        }
    }
    endBox();
    if (header.width == 0 && (status == JXL_DEC_ERROR || status == JXL_DEC_NEED_MORE_INPUT)) {
        throw damagedJpegXl();
    }
    return checkedHeader(header);
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
            jpeg.size() - static_cast<qsizetype>(JxlDecoderReleaseJPEGBuffer(decoder.get()));
        jpeg.resize(std::max(kFirst, 2 * jpeg.size()));
        JxlDecoderSetJPEGBuffer(decoder.get(), reinterpret_cast<uint8_t *>(jpeg.data()) + used,
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
    jpeg.chop(static_cast<qsizetype>(JxlDecoderReleaseJPEGBuffer(decoder.get())));
    return jpeg;
}

} // namespace folioforge
