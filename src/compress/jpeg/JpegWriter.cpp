// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegWriter.h"

#include "compress/jpeg/JpegCodec.h"

#include <cstdlib>

namespace folioforge {

namespace {

J_COLOR_SPACE spaceOf(const PlanarImage &image) {
    return image.components() == 1 ? JCS_GRAYSCALE : image.components() == 3 ? JCS_YCbCr : JCS_YCCK;
}

/// Encodes one picture.
class Encoder {
  public:
    Encoder() {
        m_codec.err = install(m_escape);
        jpeg_create_compress(&m_codec);
    }
    ~Encoder() {
        jpeg_destroy_compress(&m_codec);
        std::free(m_bytes);
    }
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;

    std::string encode(const PlanarImage &image, int quality) {
        if (!start(image, quality)) {
            throw damagedJpeg(m_escape);
        }
        makeRoom();
        if (!writeBands(image)) {
            throw damagedJpeg(m_escape);
        }
        return {reinterpret_cast<const char *>(m_bytes), m_size};
    }

  private:
    bool start(const PlanarImage &image, int quality) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        jpeg_mem_dest(&m_codec, &m_bytes, &m_size);
        m_codec.image_width = static_cast<JDIMENSION>(image.width);
        m_codec.image_height = static_cast<JDIMENSION>(image.height);
        m_codec.input_components = image.components();
        m_codec.in_color_space = spaceOf(image);
        jpeg_set_defaults(&m_codec);
        jpeg_set_quality(&m_codec, quality, TRUE);
        m_codec.raw_data_in = TRUE;
        m_codec.optimize_coding = TRUE;
        jpeg_start_compress(&m_codec, TRUE);
        return true;
    }

    void makeRoom() {
        for (int i = 0; i < m_codec.num_components; ++i) {
            const jpeg_component_info &part = m_codec.comp_info[i];
            const auto columns = static_cast<std::size_t>(part.width_in_blocks);
            m_bands.add(columns * DCTSIZE, static_cast<std::size_t>(part.v_samp_factor) * DCTSIZE);
        }
    }

    bool writeBands(const PlanarImage &image) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        const auto rows = static_cast<JDIMENSION>(m_codec.max_v_samp_factor * DCTSIZE);
        for (int band = 0; m_codec.next_scanline < m_codec.image_height; ++band) {
            m_bands.copyFrom(image, band);
            jpeg_write_raw_data(&m_codec, m_bands.rows(), rows);
        }
        jpeg_finish_compress(&m_codec);
        return true;
    }

    jpeg_compress_struct m_codec = {};
    JpegEscape m_escape = {};
    Bands m_bands;
    unsigned char *m_bytes = nullptr;
    unsigned long m_size = 0;
};

} // namespace

std::string encodeJpeg(const PlanarImage &image, int quality) {
    return Encoder().encode(image, quality);
}

} // namespace folioforge
