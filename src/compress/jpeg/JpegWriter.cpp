// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegWriter.h"

#include "compress/jpeg/JpegCodec.h"

#include <array>
#include <new>
#include <string>
#include <utility>

#include <jerror.h>

namespace folioforge {

namespace {

J_COLOR_SPACE spaceOf(const PlanarImage &image) {
    return image.components() == 1 ? JCS_GRAYSCALE : image.components() == 3 ? JCS_YCbCr : JCS_YCCK;
}

/// Collects what libjpeg writes. The library's own memory destination forgets which of its buffers
/// is alive when memory ends while it grows.
class Destination : public jpeg_destination_mgr {
  public:
    Destination()
        : jpeg_destination_mgr{} {
        init_destination = [](j_compress_ptr codec) { of(codec).begin(); };
        empty_output_buffer = [](j_compress_ptr codec) -> boolean {
            of(codec).keep(codec, of(codec).m_block.size());
            of(codec).begin();
            return TRUE;
        };
        term_destination = [](j_compress_ptr codec) {
            of(codec).keep(codec, of(codec).m_block.size() - of(codec).free_in_buffer);
        };
    }

    std::string take() { return std::move(m_bytes); }

  private:
    static Destination &of(j_compress_ptr codec) {
        return static_cast<Destination &>(*codec->dest);
    }

    void begin() {
        next_output_byte = m_block.data();
        free_in_buffer = m_block.size();
    }

    /// No exception may pass through the library.
    void keep(j_compress_ptr codec, std::size_t count) {
        bool isKept = true;
        try {
            m_bytes.append(reinterpret_cast<const char *>(m_block.data()), count);
        } catch (const std::bad_alloc &) {
            isKept = false;
        }
        if (!isKept) {
            ERREXIT1(codec, JERR_OUT_OF_MEMORY, 0);
        }
    }

    std::array<JOCTET, 1 << 14> m_block = {};
    std::string m_bytes;
};

/// Encodes one picture.
class Encoder {
  public:
    Encoder() {
        m_codec.err = install(m_escape);
        jpeg_create_compress(&m_codec);
    }
    ~Encoder() { jpeg_destroy_compress(&m_codec); }
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
        return m_destination.take();
    }

  private:
    bool start(const PlanarImage &image, int quality) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        m_codec.dest = &m_destination;
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
    Destination m_destination;
};

} // namespace

std::string encodeJpeg(const PlanarImage &image, int quality) {
    return Encoder().encode(image, quality);
}

} // namespace folioforge
