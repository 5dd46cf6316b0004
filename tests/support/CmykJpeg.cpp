#include "support/CmykJpeg.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <jpeglib.h>

namespace folioforge::test {

namespace {

void appendInks(QRgb colour, bool inverted, std::vector<JSAMPLE> &row) {
    const int black = 255 - std::max({qRed(colour), qGreen(colour), qBlue(colour)});
    for (const int part : {qRed(colour), qGreen(colour), qBlue(colour)}) {
        const int ink = 255 - part - black;
        row.push_back(static_cast<JSAMPLE>(inverted ? 255 - ink : ink));
    }
    row.push_back(static_cast<JSAMPLE>(inverted ? 255 - black : black));
}

} // namespace

QByteArray cmykJpeg(const QImage &image, CmykForm form) {
    constexpr int kQuality = 92;
    jpeg_compress_struct codec = {};
    jpeg_error_mgr errors = {};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_compress(&codec);
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&codec, &bytes, &size);
    codec.image_width = static_cast<JDIMENSION>(image.width());
    codec.image_height = static_cast<JDIMENSION>(image.height());
    codec.input_components = 4;
    codec.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&codec);
    jpeg_set_colorspace(&codec, form == CmykForm::AdobeYcck ? JCS_YCCK : JCS_CMYK);
    codec.write_Adobe_marker = static_cast<boolean>(form != CmykForm::Plain);
    jpeg_set_quality(&codec, kQuality, TRUE);
    jpeg_start_compress(&codec, TRUE);
    std::vector<JSAMPLE> row;
    for (int y = 0; y < image.height(); ++y) {
        row.clear();
        for (int x = 0; x < image.width(); ++x) {
            appendInks(image.pixel(x, y), form != CmykForm::Plain, row);
        }
        JSAMPROW rows = row.data();
        jpeg_write_scanlines(&codec, &rows, 1);
    }
    jpeg_finish_compress(&codec);
    const QByteArray file(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    jpeg_destroy_compress(&codec);
    std::free(bytes);
    return file;
}

} // namespace folioforge::test
