// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegPixels.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/PictureDamage.h"
#include "image/formats/JpegEscape.h"
#include "image/formats/JpegSegments.h"

#include <jerror.h>

#include <algorithm>
#include <memory>

namespace folioforge {

namespace {

/// What the library warns of while it decodes.
struct Faults : JpegEscape {
    qint64 cutAtRow = -1;  ///< From here on the rows have no data; -1 for none.
    bool isCoarse = false; ///< A later scan of several ends too early.
    bool isFaulty = false; ///< Codes are flawed.
    bool hasEnded = false; ///< The file ends before its end marker.
    bool hasBegun = false; ///< The first scan has begun.
    bool isArithmetic = false;
};

/// Data that end before they fill the rows of a scan. With restart markers the next one mends a
/// gap, unless the file has ended.
void noteGap(const jpeg_decompress_struct &codec, Faults &faults) {
    if (codec.input_scan_number > 1) {
        faults.isCoarse = true;
    } else if (faults.cutAtRow < 0 && (codec.restart_interval == 0 || faults.hasEnded)) {
        faults.cutAtRow = qint64(codec.input_iMCU_row) * codec.max_v_samp_factor * DCTSIZE;
    } else {
        faults.isFaulty = true;
    }
}

extern "C" void noteWarning(j_common_ptr common, int level) {
    if (level >= 0) {
        return;
    }
    const auto &codec = *reinterpret_cast<j_decompress_ptr>(common);
    auto &faults = *static_cast<Faults *>(reinterpret_cast<JpegEscape *>(common->err));
    switch (common->err->msg_code) {
    case JWRN_JPEG_EOF:
        faults.hasEnded = true;
        // Arithmetic coding takes a missing byte for a zero without a word.
        if (faults.isArithmetic && faults.hasBegun) {
            noteGap(codec, faults);
        }
        break;
    case JWRN_HIT_MARKER:
        noteGap(codec, faults);
        break;
    case JWRN_EXTRANEOUS_DATA:
        faults.isFaulty = faults.isFaulty || faults.hasBegun;
        break;
    case JWRN_ADOBE_XFORM:
    case JWRN_NOT_SEQUENTIAL:
        break; // These lose nothing.
    default:
        faults.isFaulty = true;
    }
}

/// One attempt at decoding a file.
class Decoder {
  public:
    explicit Decoder(QByteArrayView file)
        : m_file(file) {
        m_codec.err = install(m_faults);
        m_faults.manager.emit_message = noteWarning;
        jpeg_create_decompress(&m_codec);
        m_progress.progress_monitor = stopEndlessScans;
        m_codec.progress = &m_progress;
    }
    ~Decoder() { jpeg_destroy_decompress(&m_codec); }
    Decoder(const Decoder &) = delete;
    Decoder &operator=(const Decoder &) = delete;

    /// Reads the header, and of a file of several scans all of them. False on an error.
    bool start() {
        if (setjmp(m_faults.target)) {
            return false;
        }
        jpeg_mem_src(&m_codec, reinterpret_cast<const uchar *>(m_file.data()),
                     static_cast<unsigned long>(m_file.size()));
        jpeg_read_header(&m_codec, TRUE);
        m_faults.hasBegun = true;
        m_faults.isArithmetic = m_codec.arith_code != 0;
        jpeg_start_decompress(&m_codec);
        return true;
    }

    [[nodiscard]] Raster emptyRaster() const {
        Raster raster;
        raster.width = static_cast<int>(m_codec.output_width);
        raster.height = static_cast<int>(m_codec.output_height);
        raster.color = m_codec.output_components == 1   ? ImageColor::Gray
                       : m_codec.output_components == 3 ? ImageColor::Rgb
                                                        : ImageColor::Cmyk;
        raster.samples = allocateRows(raster.height, raster.stride());
        return raster;
    }

    /// Fills the rows, as many as can be.
    void readRows(uchar *samples, qsizetype stride) {
        if (setjmp(m_faults.target)) {
            m_faults.isFaulty = true;
            return;
        }
        while (m_codec.output_scanline < m_codec.output_height) {
            JSAMPROW row = samples + qsizetype(m_codec.output_scanline) * stride;
            jpeg_read_scanlines(&m_codec, &row, 1);
        }
        noteMissingScans();
        jpeg_finish_decompress(&m_codec);
    }

    /// How many bytes at the end of the file were not reached.
    [[nodiscard]] qint64 bytesLeft() const {
        return static_cast<qint64>(m_codec.src->bytes_in_buffer);
    }

    [[nodiscard]] Warnings warnings() const {
        const qint64 rows = m_codec.output_height;
        const qint64 whole =
            m_faults.cutAtRow < 0 ? m_codec.output_scanline : std::min(m_faults.cutAtRow, rows);
        if (whole < rows) {
            return {cutOffPicture(rows - whole, rows)};
        }
        if (m_faults.isCoarse) {
            return {coarsePicture()};
        }
        return m_faults.isFaulty ? Warnings{faultyPicture()} : Warnings{};
    }

  private:
    /// A file may end between two scans, where no data are missing but the scans to come.
    void noteMissingScans() {
        if (!m_faults.hasEnded || jpeg_has_multiple_scans(&m_codec) == 0) {
            return;
        }
        for (int c = 0; c < m_codec.num_components; ++c) {
            m_faults.isCoarse =
                m_faults.isCoarse ||
                (m_codec.coef_bits == nullptr
                     ? m_codec.input_scan_number < m_codec.num_components
                     : std::any_of(m_codec.coef_bits[c], m_codec.coef_bits[c] + DCTSIZE2,
                                   [](int unknownBits) { return unknownBits != 0; }));
        }
    }

    QByteArrayView m_file;
    Faults m_faults = {};
    jpeg_progress_mgr m_progress = {};
    jpeg_decompress_struct m_codec = {};
};

/// Where the segment begins that holds the byte before `reached`.
qint64 segmentBefore(const FileView &file, qint64 reached) {
    JpegSegments segments(file);
    qint64 begin = 0;
    while (auto segment = segments.next()) {
        if (segment->at >= reached) {
            return begin;
        }
        begin = segment->at;
        if (segment->marker == Sos) {
            segments.passCodedData(*segment);
        }
    }
    return segments.position();
}

} // namespace

JpegPixels decodeJpeg(const FileView &file) {
    const Error damaged(Reasons::tr("The JPEG file is damaged: none of its rows could be read"));
    const QByteArray bytes = file.readExactly(0, file.size());
    auto decoder = std::make_unique<Decoder>(bytes);
    if (!decoder->start()) {
        // What comes before a segment that the library rejects may still be a picture.
        const qint64 end = segmentBefore(file, bytes.size() - decoder->bytesLeft());
        decoder = std::make_unique<Decoder>(QByteArrayView(bytes).first(end));
        if (!decoder->start()) {
            throw damaged;
        }
    }
    JpegPixels pixels{decoder->emptyRaster(), {}};
    decoder->readRows(reinterpret_cast<uchar *>(pixels.raster.samples.data()),
                      pixels.raster.stride());
    pixels.warnings = decoder->warnings();
    // After the last data the library goes on guessing for some blocks.
    constexpr int kGuessed = 4 * DCTSIZE;
    if (!pixels.warnings.empty() && isPlain(pixels.raster, kGuessed)) {
        throw damaged;
    }
    return pixels;
}

} // namespace folioforge
