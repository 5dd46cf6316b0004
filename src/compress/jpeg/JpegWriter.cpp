// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegWriter.h"

#include "compress/jpeg/JpegCodec.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <new>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

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

/// The symbols of AC coefficients (ITU-T T.81, F.1.2.2): a run of zeros and the bits of the number
/// behind it, the end of a block, and sixteen zeros.
std::vector<UINT8> acSymbols() {
    constexpr int kRuns = 16;
    constexpr int kMaxBits = 10;
    std::vector<UINT8> symbols{0x00, 0xf0};
    for (int run = 0; run < kRuns; ++run) {
        for (int bits = 1; bits <= kMaxBits; ++bits) {
            symbols.push_back(static_cast<UINT8>(run * kRuns + bits));
        }
    }
    return symbols;
}

/// The symbols of DC coefficients (ITU-T T.81, F.1.2.1): the bits of a difference.
std::vector<UINT8> dcSymbols() {
    constexpr int kMaxBits = 11;
    std::vector<UINT8> symbols(kMaxBits + 1);
    std::iota(symbols.begin(), symbols.end(), UINT8(0));
    return symbols;
}

/// Gives each of `symbols` that `table` lacks a code of 16 bits, the longest there is. Their room
/// comes from the last symbol of at most 7 bits, whose code grows by one: that frees 256 codes.
void complete(JHUFF_TBL &table, const std::vector<UINT8> &symbols) {
    constexpr int kMaxLength = 16;
    int count = std::accumulate(table.bits + 1, table.bits + kMaxLength + 1, 0);
    std::vector<UINT8> missing;
    std::copy_if(symbols.begin(), symbols.end(), std::back_inserter(missing), [&](UINT8 symbol) {
        return std::find(table.huffval, table.huffval + count, symbol) == table.huffval + count;
    });
    if (missing.empty()) {
        return;
    }
    int length = 7;
    while (length > 1 && table.bits[length] == 0) {
        --length;
    }
    --table.bits[length];
    ++table.bits[length + 1];
    table.bits[kMaxLength] = static_cast<UINT8>(table.bits[kMaxLength] + missing.size());
    std::copy(missing.begin(), missing.end(), table.huffval + count);
}

/// Encodes one picture.
class Encoder {
  public:
    Encoder() {
        m_codec.err = installStrictly(m_escape);
        jpeg_create_compress(&m_codec);
    }
    ~Encoder() { jpeg_destroy_compress(&m_codec); }
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;

    /// The Huffman tables of a small picture are made for all of it, those of a large one for some
    /// of its bands: to count the symbols of all takes an eighth of the time of a compression.
    std::string encode(const PlanarImage &image, int quality) {
        constexpr int kStep = 8;
        constexpr int kFewBands = 64;
        check(describe(image, quality));
        const int bands = image.height / bandRows();
        if (bands < kFewBands) {
            check(write(image, 1, Tables::Made));
        } else {
            check(write(image, kStep, Tables::Made));
            m_destination.take();
            completeTables();
            check(write(image, 1, Tables::Kept));
        }
        return m_destination.take();
    }

  private:
    enum class Tables { Made, Kept };

    void check(bool isDone) const {
        if (!isDone) {
            throw damagedJpeg(m_escape);
        }
    }

    bool describe(const PlanarImage &image, int quality) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        m_codec.dest = &m_destination;
        m_codec.image_width = static_cast<JDIMENSION>(image.width);
        m_codec.input_components = image.components();
        m_codec.in_color_space = spaceOf(image);
        jpeg_set_defaults(&m_codec);
        jpeg_set_quality(&m_codec, quality, TRUE);
        m_codec.raw_data_in = TRUE;
        return true;
    }

    /// Rows of a band. The first component is never smaller than the others.
    [[nodiscard]] int bandRows() const { return m_codec.comp_info[0].v_samp_factor * DCTSIZE; }

    void completeTables() {
        for (int i = 0; i < NUM_HUFF_TBLS; ++i) {
            if (m_codec.dc_huff_tbl_ptrs[i] && m_codec.ac_huff_tbl_ptrs[i]) {
                complete(*m_codec.dc_huff_tbl_ptrs[i], dcSymbols());
                complete(*m_codec.ac_huff_tbl_ptrs[i], acSymbols());
            }
        }
    }

    void makeRoom() {
        m_bands = {};
        for (int i = 0; i < m_codec.num_components; ++i) {
            const jpeg_component_info &part = m_codec.comp_info[i];
            const auto columns = static_cast<std::size_t>(part.width_in_blocks);
            m_bands.add(columns * DCTSIZE, static_cast<std::size_t>(part.v_samp_factor) * DCTSIZE);
        }
    }

    /// Writes a picture of the bands of `image` whose number is a multiple of `step`.
    bool write(const PlanarImage &image, int step, Tables tables) {
        if (setjmp(m_escape.target)) {
            return false;
        }
        const int rows = bandRows();
        m_codec.image_height =
            static_cast<JDIMENSION>(step == 1 ? image.height : image.height / rows / step * rows);
        m_codec.optimize_coding = tables == Tables::Made;
        jpeg_start_compress(&m_codec, TRUE);
        makeRoom();
        for (int band = 0; m_codec.next_scanline < m_codec.image_height; band += step) {
            m_bands.copyFrom(image, band);
            jpeg_write_raw_data(&m_codec, m_bands.rows(), static_cast<JDIMENSION>(rows));
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
