#include "convert/compress/JpegCodec.h"

#include "error/Error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>

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

J_COLOR_SPACE spaceOf(SampleKind kind) {
    switch (kind) {
    case SampleKind::Gray:
        return JCS_GRAYSCALE;
    case SampleKind::Rgb:
        return JCS_RGB;
    case SampleKind::Cmyk:
        return JCS_CMYK;
    case SampleKind::YCbCr:
        return JCS_YCbCr;
    default:
        return JCS_YCCK;
    }
}

SampleKind kindOf(J_COLOR_SPACE space) {
    switch (space) {
    case JCS_GRAYSCALE:
        return SampleKind::Gray;
    case JCS_RGB:
        return SampleKind::Rgb;
    case JCS_YCbCr:
        return SampleKind::YCbCr;
    case JCS_YCCK:
        return SampleKind::Ycck;
    default:
        return SampleKind::Cmyk;
    }
}

} // namespace

struct JpegReader::State {
    jpeg_decompress_struct codec = {};
    Escape escape = {};
    jpeg_progress_mgr progress = {};

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
        codec.out_color_space = codec.jpeg_color_space;
        codec.scale_num = static_cast<unsigned>(eighths);
        codec.scale_denom = 8;
        jpeg_start_decompress(&codec);
        return true;
    }

    bool readRows(SampleGrid &grid) {
        if (setjmp(escape.target)) {
            return false;
        }
        while (codec.output_scanline < codec.output_height) {
            JSAMPROW row = grid.row(static_cast<int>(codec.output_scanline));
            jpeg_read_scanlines(&codec, &row, 1);
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

SampleGrid JpegReader::decode(int eighths) {
    if (!m_state->start(eighths)) {
        throw damaged(m_state->escape);
    }
    SampleGrid grid{static_cast<int>(m_state->codec.output_width),
                    static_cast<int>(m_state->codec.output_height),
                    kindOf(m_state->codec.out_color_space),
                    {}};
    grid.allocate();
    if (!m_state->readRows(grid)) {
        throw damaged(m_state->escape);
    }
    return grid;
}

namespace {

struct Encoder {
    jpeg_compress_struct codec = {};
    Escape escape = {};
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

    bool encode(const SampleGrid &grid, int quality) {
        if (setjmp(escape.target)) {
            return false;
        }
        jpeg_mem_dest(&codec, &bytes, &size);
        codec.image_width = static_cast<JDIMENSION>(grid.width);
        codec.image_height = static_cast<JDIMENSION>(grid.height);
        codec.input_components = grid.components();
        codec.in_color_space = spaceOf(grid.kind);
        jpeg_set_defaults(&codec);
        if (codec.in_color_space == JCS_CMYK) {
            jpeg_set_colorspace(&codec, JCS_YCCK);
        }
        jpeg_set_quality(&codec, quality, TRUE);
        codec.optimize_coding = TRUE;
        jpeg_start_compress(&codec, TRUE);
        while (codec.next_scanline < codec.image_height) {
            // libjpeg only reads the row but takes it without const.
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
            JSAMPROW row = const_cast<JSAMPROW>(grid.row(static_cast<int>(codec.next_scanline)));
            jpeg_write_scanlines(&codec, &row, 1);
        }
        jpeg_finish_compress(&codec);
        return true;
    }
};

} // namespace

std::string encodeJpeg(const SampleGrid &grid, int quality) {
    Encoder encoder;
    if (!encoder.encode(grid, quality)) {
        throw damaged(encoder.escape);
    }
    return {reinterpret_cast<const char *>(encoder.bytes), encoder.size};
}

} // namespace folioforge
