#include "compress/jpeg/JpegWriter.h"

#include "compress/jpeg/HuffmanTables.h"
#include "compress/jpeg/JpegBands.h"
#include "compress/jpeg/JpegErrors.h"

#include <cstdlib>

namespace folioforge {

namespace {

/// A sample has one band of so many, which stands for all of them in a large picture.
constexpr int kSampleStep = 8;
constexpr int kFewestSampled = 4;

J_COLOR_SPACE spaceOf(const PlanarImage &image) {
    return image.components() == 1 ? JCS_GRAYSCALE : image.components() == 3 ? JCS_YCbCr : JCS_YCCK;
}

/// Encodes one picture, or every so many bands of it.
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

    /// Encodes every `step`th band, with the best tables for just these where none are given.
    void encode(const PlanarImage &image, int quality, int step, const HuffmanTables *tables) {
        if (!setUp(image, quality)) {
            throw damagedJpeg(m_escape);
        }
        m_codec.image_height = sampledRows(image, step);
        m_codec.optimize_coding = static_cast<boolean>(!tables);
        if (tables) {
            tables->use(m_codec);
        }
        if (!start()) {
            throw damagedJpeg(m_escape);
        }
        makeRoom();
        if (!writeBands(image, step)) {
            throw damagedJpeg(m_escape);
        }
    }

    [[nodiscard]] std::string file() const {
        return {reinterpret_cast<const char *>(m_bytes), m_size};
    }
    [[nodiscard]] HuffmanTables tables() const { return HuffmanTables::ofSample(m_codec); }

  private:
    bool setUp(const PlanarImage &image, int quality) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        jpeg_mem_dest(&m_codec, &m_bytes, &m_size);
        m_codec.image_width = static_cast<JDIMENSION>(image.width);
        m_codec.input_components = image.components();
        m_codec.in_color_space = spaceOf(image);
        jpeg_set_defaults(&m_codec);
        jpeg_set_quality(&m_codec, quality, TRUE);
        m_codec.raw_data_in = TRUE;
        return true;
    }

    /// The rows of a band of the component sampled most, once the defaults are set.
    [[nodiscard]] int bandRows() const {
        int factor = 1;
        for (int i = 0; i < m_codec.num_components; ++i) {
            factor = std::max(factor, m_codec.comp_info[i].v_samp_factor);
        }
        return factor * DCTSIZE;
    }

    [[nodiscard]] JDIMENSION sampledRows(const PlanarImage &image, int step) const {
        const int rows = bandRows();
        const int sampled = (image.height + rows * step - 1) / (rows * step) * rows;
        return static_cast<JDIMENSION>(step == 1 ? image.height : sampled);
    }

    bool start() {
        if (setjmp(m_escape.target)) {
            return false;
        }
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

    bool writeBands(const PlanarImage &image, int step) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        const auto rows = static_cast<JDIMENSION>(bandRows());
        for (int band = 0; m_codec.next_scanline < m_codec.image_height; band += step) {
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

/// Tables made for a sample of the picture, so that the picture itself is gone through only once.
HuffmanTables sampledTables(const PlanarImage &image, int quality) {
    Encoder encoder;
    encoder.encode(image, quality, kSampleStep, nullptr);
    return encoder.tables();
}

} // namespace

std::string encodeJpeg(const PlanarImage &image, int quality) {
    constexpr int kTallestBand = 2 * DCTSIZE;
    Encoder encoder;
    if (image.height < kFewestSampled * kSampleStep * kTallestBand) {
        encoder.encode(image, quality, 1, nullptr);
    } else {
        const HuffmanTables tables = sampledTables(image, quality);
        encoder.encode(image, quality, 1, &tables);
    }
    return encoder.file();
}

} // namespace folioforge
