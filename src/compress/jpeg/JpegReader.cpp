// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegReader.h"

#include "compress/jpeg/JpegCodec.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

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
            throw Error(u"JPEG data of an unusual layout"_s);
        }
    }
}

} // namespace

struct JpegReader::State {
    jpeg_decompress_struct codec = {};
    JpegEscape escape = {};
    jpeg_progress_mgr progress = {};
    Bands bands;

    State() {
        codec.err = installStrictly(escape);
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

    PlanarImage decode(int eighths) {
        if (!start(eighths)) {
            throw damagedJpeg(escape);
        }
        PlanarImage image = makeRoom();
        if (!readBands(image)) {
            throw damagedJpeg(escape);
        }
        return image;
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
            bands.aimAt(image, band);
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
        throw damagedJpeg(m_state->escape);
    }
    m_state->applyColorTransform(colorTransform);
    const int components = m_state->codec.num_components;
    if (m_state->codec.jpeg_color_space == JCS_UNKNOWN ||
        (components != 1 && components != 3 && components != 4)) {
        throw Error(u"JPEG data with %1 components"_s.arg(components));
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
    PlanarImage image = m_state->decode(eighths);
    if (isPlain(m_state->codec.jpeg_color_space)) {
        requireEqualSizes(image);
        toJpegColor(image);
    }
    return image;
}

} // namespace folioforge
