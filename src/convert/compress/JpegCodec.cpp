#include "convert/compress/JpegCodec.h"

#include "convert/compress/JpegColour.h"
#include "error/Error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <jpeglib.h>

namespace folioforge {

namespace {

/// A progressive file can repeat scans to keep a decoder busy for hours; real ones have about ten.
constexpr int kMaxScans = 200;

struct Escape {
    jpeg_error_mgr manager;
    std::jmp_buf target;
    std::array<char, JMSG_LENGTH_MAX> message;
};

extern "C" {

void leaveByJump(j_common_ptr codec) {
    // The manager is the first member of Escape, where libjpeg expects it.
    auto *escape = reinterpret_cast<Escape *>(codec->err);
    codec->err->format_message(codec, escape->message.data());
    std::longjmp(escape->target, 1);
}

void countWarning(j_common_ptr codec, int level) {
    if (level < 0) {
        leaveByJump(codec);
    }
}

void stopEndlessScans(j_common_ptr codec) {
    if (codec->is_decompressor &&
        reinterpret_cast<j_decompress_ptr>(codec)->input_scan_number > kMaxScans) {
        leaveByJump(codec);
    }
}
}

jpeg_error_mgr *install(Escape &escape) {
    jpeg_std_error(&escape.manager);
    escape.manager.error_exit = leaveByJump;
    escape.manager.emit_message = countWarning;
    return &escape.manager;
}

Error damaged(const Escape &escape) {
    return Error(
        QStringLiteral("damaged JPEG data: %1").arg(QString::fromLatin1(escape.message.data())));
}

/// The rows of one component that libjpeg takes or gives at once, padded to whole blocks.
class Band {
  public:
    Band(std::size_t width, std::size_t height)
        : m_width(width)
        , m_samples(width * height) {
        for (std::size_t y = 0; y < height; ++y) {
            m_rows.push_back(m_samples.data() + y * width);
        }
    }

    [[nodiscard]] int height() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] JSAMPARRAY rows() { return m_rows.data(); }

    /// Copies as many rows as there are left in `plane` from row `top` on.
    void copyTo(Plane &plane, int top) const {
        for (int y = top; y < std::min(top + height(), plane.height()); ++y) {
            std::memcpy(plane.row(y), rowAt(y - top), static_cast<std::size_t>(plane.width()));
        }
    }
    /// The same the other way; the last column and row go on into the padding.
    void copyFrom(const Plane &plane, int top) {
        const auto width = static_cast<std::size_t>(plane.width());
        for (int y = top; y < top + height(); ++y) {
            const std::uint8_t *row = plane.row(std::min(y, plane.height() - 1));
            JSAMPROW to = rowAt(y - top);
            std::memcpy(to, row, width);
            std::memset(to + width, row[width - 1], m_width - width);
        }
    }

  private:
    [[nodiscard]] JSAMPROW rowAt(int y) const { return m_rows[static_cast<std::size_t>(y)]; }

    std::size_t m_width;
    std::vector<JSAMPLE> m_samples;
    std::vector<JSAMPROW> m_rows;
};

/// A band for each component, in the form that libjpeg's functions for raw data take.
class Bands {
  public:
    void add(std::size_t width, std::size_t height) { m_bands.emplace_back(width, height); }
    [[nodiscard]] JSAMPIMAGE rows() {
        m_rows.clear();
        for (Band &band : m_bands) {
            m_rows.push_back(band.rows());
        }
        return m_rows.data();
    }
    /// `band` counts the bands from the top.
    void copyTo(PlanarImage &image, int band) const {
        for (std::size_t i = 0; i < m_bands.size(); ++i) {
            m_bands[i].copyTo(image.planes[i], band * m_bands[i].height());
        }
    }
    void copyFrom(const PlanarImage &image, int band) {
        for (std::size_t i = 0; i < m_bands.size(); ++i) {
            m_bands[i].copyFrom(image.planes[i], band * m_bands[i].height());
        }
    }

  private:
    std::vector<Band> m_bands;
    std::vector<JSAMPARRAY> m_rows;
};

/// Samples of a decoded block's side; libjpeg names it by the version it stands for.
int blockSide(const jpeg_component_info &component) {
#if JPEG_LIB_VERSION >= 70
    return component.DCT_h_scaled_size;
#else
    return component.DCT_scaled_size;
#endif
}

/// The rows that jpeg_read_raw_data() gives of the component sampled most.
JDIMENSION bandRows(const jpeg_decompress_struct &codec) {
#if JPEG_LIB_VERSION >= 70
    const int side = codec.min_DCT_v_scaled_size;
#else
    const int side = codec.min_DCT_scaled_size;
#endif
    return static_cast<JDIMENSION>(codec.max_v_samp_factor * side);
}

/// Whether the components are light or inks, which JPEG can keep as well.
bool isPlain(J_COLOR_SPACE space) {
    return space == JCS_RGB || space == JCS_CMYK;
}

/// Plain components kept at different sizes are possible but have no use.
void requireEqualSizes(const PlanarImage &image) {
    for (const Plane &plane : image.planes) {
        if (plane.width() != image.width || plane.height() != image.height) {
            throw Error(QStringLiteral("JPEG data of an unusual layout"));
        }
    }
}

} // namespace

struct JpegReader::State {
    jpeg_decompress_struct codec = {};
    Escape escape = {};
    jpeg_progress_mgr progress = {};
    Bands bands;

    State() {
        codec.err = install(escape);
        jpeg_create_decompress(&codec);
        progress.progress_monitor = stopEndlessScans;
        codec.progress = &progress;
    }
    ~State() { jpeg_destroy_decompress(&codec); }
    State(const State &) = delete;
    State &operator=(const State &) = delete;

    bool readHeader(std::string_view data) {
        if (setjmp(escape.target)) {
            return false;
        }
        jpeg_mem_src(&codec, reinterpret_cast<const unsigned char *>(data.data()),
                     static_cast<unsigned long>(data.size()));
        jpeg_read_header(&codec, TRUE);
        return true;
    }

    void applyColorTransform(std::optional<int> transform) {
        if (!transform || codec.saw_Adobe_marker) {
            return;
        }
        if (codec.num_components == 3) {
            codec.jpeg_color_space = *transform ? JCS_YCbCr : JCS_RGB;
        } else if (codec.num_components == 4) {
            codec.jpeg_color_space = *transform ? JCS_YCCK : JCS_CMYK;
        }
    }

    bool start(int eighths) {
        if (setjmp(escape.target)) {
            return false;
        }
        codec.raw_data_out = TRUE;
        codec.out_color_space = codec.jpeg_color_space;
        codec.scale_num = static_cast<unsigned>(eighths);
        codec.scale_denom = 8;
        jpeg_start_decompress(&codec);
        return true;
    }

    /// Room for what the decoder that was started is going to give.
    PlanarImage makeRoom() {
        PlanarImage image(static_cast<int>(codec.output_width),
                          static_cast<int>(codec.output_height));
        for (int i = 0; i < codec.num_components; ++i) {
            const jpeg_component_info &part = codec.comp_info[i];
            const auto side = static_cast<std::size_t>(blockSide(part));
            image.planes.emplace_back(static_cast<int>(part.downsampled_width),
                                      static_cast<int>(part.downsampled_height));
            bands.add(part.width_in_blocks * side,
                      static_cast<std::size_t>(part.v_samp_factor) * side);
        }
        return image;
    }

    bool readBands(PlanarImage &image) {
        if (setjmp(escape.target)) {
            return false;
        }
        for (int band = 0; codec.output_scanline < codec.output_height; ++band) {
            jpeg_read_raw_data(&codec, bands.rows(), bandRows(codec));
            bands.copyTo(image, band);
        }
        jpeg_finish_decompress(&codec);
        return true;
    }
};

JpegReader::JpegReader(std::string_view data, std::optional<int> colorTransform)
    : m_state(std::make_unique<State>()) {
    if (!m_state->readHeader(data)) {
        throw damaged(m_state->escape);
    }
    m_state->applyColorTransform(colorTransform);
    const int components = m_state->codec.num_components;
    if (m_state->codec.jpeg_color_space == JCS_UNKNOWN ||
        (components != 1 && components != 3 && components != 4)) {
        throw Error(QStringLiteral("JPEG data with %1 components").arg(components));
    }
}

JpegReader::~JpegReader() = default;

int JpegReader::width() const {
    return static_cast<int>(m_state->codec.image_width);
}

int JpegReader::height() const {
    return static_cast<int>(m_state->codec.image_height);
}

int JpegReader::components() const {
    return m_state->codec.num_components;
}

int JpegReader::quality() const {
    const JQUANT_TBL *table = m_state->codec.quant_tbl_ptrs[0];
    if (!table) {
        return 100;
    }
    // The sum of the standard luminance table (ITU-T T.81, table K.1), which libjpeg scales by
    // 5000/q percent below quality 50 and by 200-2q percent above.
    constexpr double kStandardSum = 3688;
    double sum = 0;
    for (const UINT16 step : table->quantval) {
        sum += step;
    }
    const double percent = 100 * sum / kStandardSum;
    const double quality = percent > 100 ? 5000 / percent : (200 - percent) / 2;
    return std::clamp(static_cast<int>(std::lround(quality)), 1, 100);
}

PlanarImage JpegReader::decode(int eighths) {
    if (!m_state->start(eighths)) {
        throw damaged(m_state->escape);
    }
    PlanarImage image = m_state->makeRoom();
    if (!m_state->readBands(image)) {
        throw damaged(m_state->escape);
    }
    if (isPlain(m_state->codec.jpeg_color_space)) {
        requireEqualSizes(image);
        toJpegColour(image);
    }
    return image;
}

namespace {

J_COLOR_SPACE spaceOf(const PlanarImage &image) {
    return image.components() == 1 ? JCS_GRAYSCALE : image.components() == 3 ? JCS_YCbCr : JCS_YCCK;
}

struct Encoder {
    jpeg_compress_struct codec = {};
    Escape escape = {};
    Bands bands;
    unsigned char *bytes = nullptr;
    unsigned long size = 0;

    Encoder() {
        codec.err = install(escape);
        jpeg_create_compress(&codec);
    }
    ~Encoder() {
        jpeg_destroy_compress(&codec);
        std::free(bytes);
    }
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;

    bool start(const PlanarImage &image, int quality) {
        if (setjmp(escape.target)) {
            return false;
        }
        jpeg_mem_dest(&codec, &bytes, &size);
        codec.image_width = static_cast<JDIMENSION>(image.width);
        codec.image_height = static_cast<JDIMENSION>(image.height);
        codec.input_components = image.components();
        codec.in_color_space = spaceOf(image);
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, quality, TRUE);
        codec.optimize_coding = TRUE;
        codec.raw_data_in = TRUE;
        jpeg_start_compress(&codec, TRUE);
        return true;
    }

    void makeRoom() {
        for (int i = 0; i < codec.num_components; ++i) {
            const jpeg_component_info &part = codec.comp_info[i];
            const auto columns = static_cast<std::size_t>(part.width_in_blocks);
            bands.add(columns * DCTSIZE, static_cast<std::size_t>(part.v_samp_factor) * DCTSIZE);
        }
    }

    bool writeBands(const PlanarImage &image) {
        if (setjmp(escape.target)) {
            return false;
        }
        const auto rows = static_cast<JDIMENSION>(codec.max_v_samp_factor * DCTSIZE);
        for (int band = 0; codec.next_scanline < codec.image_height; ++band) {
            bands.copyFrom(image, band);
            jpeg_write_raw_data(&codec, bands.rows(), rows);
        }
        jpeg_finish_compress(&codec);
        return true;
    }
};

} // namespace

std::string encodeJpeg(const PlanarImage &image, int quality) {
    Encoder encoder;
    if (!encoder.start(image, quality)) {
        throw damaged(encoder.escape);
    }
    encoder.makeRoom();
    if (!encoder.writeBands(image)) {
        throw damaged(encoder.escape);
    }
    return {reinterpret_cast<const char *>(encoder.bytes), encoder.size};
}

} // namespace folioforge
