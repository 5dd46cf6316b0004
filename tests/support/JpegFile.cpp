// SPDX-License-Identifier: Apache-2.0

#include "support/JpegFile.h"

#include <cstdlib>

namespace folioforge::test {

QByteArray jpegFile(QSize size, int components, J_COLOR_SPACE space,
                    const std::function<void(jpeg_compress_struct &)> &configure,
                    const std::function<void(int y, std::vector<JSAMPLE> &row)> &appendRow) {
    jpeg_compress_struct codec = {};
    jpeg_error_mgr errors = {};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_compress(&codec);
    unsigned char *bytes = nullptr;
    unsigned long count = 0;
    jpeg_mem_dest(&codec, &bytes, &count);
    codec.image_width = static_cast<JDIMENSION>(size.width());
    codec.image_height = static_cast<JDIMENSION>(size.height());
    codec.input_components = components;
    codec.in_color_space = space;
    jpeg_set_defaults(&codec);
    configure(codec);
    jpeg_start_compress(&codec, TRUE);
    std::vector<JSAMPLE> row;
    for (int y = 0; y < size.height(); ++y) {
        row.clear();
        appendRow(y, row);
        JSAMPROW rows = row.data();
        jpeg_write_scanlines(&codec, &rows, 1);
    }
    jpeg_finish_compress(&codec);
    QByteArray file(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(count));
    jpeg_destroy_compress(&codec);
    std::free(bytes);
    return file;
}

} // namespace folioforge::test
