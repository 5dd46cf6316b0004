// SPDX-License-Identifier: Apache-2.0

#include "support/CmykJpeg.h"

#include "support/JpegFile.h"

#include <algorithm>

namespace folioforge::test {

namespace {

void appendInks(QRgb color, bool inverted, std::vector<JSAMPLE> &row) {
    const int black = 255 - std::max({qRed(color), qGreen(color), qBlue(color)});
    for (const int part : {qRed(color), qGreen(color), qBlue(color)}) {
        const int ink = 255 - part - black;
        row.push_back(static_cast<JSAMPLE>(inverted ? 255 - ink : ink));
    }
    row.push_back(static_cast<JSAMPLE>(inverted ? 255 - black : black));
}

} // namespace

QByteArray cmykJpeg(const QImage &image, CmykForm form) {
    constexpr int kQuality = 92;
    const auto configure = [form](jpeg_compress_struct &codec) {
        jpeg_set_colorspace(&codec, form == CmykForm::AdobeYcck ? JCS_YCCK : JCS_CMYK);
        codec.write_Adobe_marker = static_cast<boolean>(form != CmykForm::Plain);
        jpeg_set_quality(&codec, kQuality, TRUE);
    };
    return jpegFile(image.size(), 4, JCS_CMYK, configure, [&](int y, std::vector<JSAMPLE> &row) {
        for (int x = 0; x < image.width(); ++x) {
            appendInks(image.pixel(x, y), form != CmykForm::Plain, row);
        }
    });
}

QByteArray samplesOfCmykJpeg(const QByteArray &jpeg) {
    jpeg_decompress_struct codec = {};
    jpeg_error_mgr errors = {};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, reinterpret_cast<const uchar *>(jpeg.constData()),
                 static_cast<unsigned long>(jpeg.size()));
    jpeg_read_header(&codec, TRUE);
    codec.out_color_space = JCS_CMYK;
    jpeg_start_decompress(&codec);
    QByteArray samples;
    QByteArray row(qsizetype{4} * codec.output_width, '\0');
    auto *target = reinterpret_cast<JSAMPLE *>(row.data());
    while (codec.output_scanline < codec.output_height &&
           jpeg_read_scanlines(&codec, &target, 1) == 1) {
        samples.append(row.constData(), row.size()); // A copy, as the row is written anew.
    }
    jpeg_destroy_decompress(&codec);
    return samples;
}

} // namespace folioforge::test
