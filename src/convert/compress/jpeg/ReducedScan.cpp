#include "convert/compress/jpeg/ReducedScan.h"

#include "convert/compress/jpeg/BitReader.h"
#include "convert/compress/jpeg/BlockTransform.h"
#include "convert/compress/jpeg/CoefficientCode.h"
#include "convert/compress/jpeg/EntropyCoded.h"
#include "convert/compress/jpeg/HuffmanCode.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

/// Blocks of a group at most (ITU-T T.81, B.2.3), and what their coefficients take, four bytes
/// each.
constexpr std::size_t kMostBlocks = D_MAX_BLOCKS_IN_MCU;
constexpr std::size_t kMostGroupBytes = kMostBlocks * DCTSIZE2 * 4;

/// One component.
struct Part {
    HuffmanCode firstCode;       ///< Of the first coefficient of a block.
    CoefficientCode furtherCode; ///< Of the others.
    BlockTransform transform;
    std::size_t plane = 0;
    int columns = 1; ///< Blocks side by side in a group.
    int rows = 1;
    int predictor = 0;
};

/// The place of a block in a group, the blocks of all components that stand together (an MCU).
struct BlockPlace {
    std::size_t part = 0;
    int column = 0;
    int row = 0;
};

int quotientUp(long dividend, long divisor) {
    return static_cast<int>((dividend + divisor - 1) / divisor);
}

bool isCommon(const jpeg_decompress_struct &codec) {
    return !codec.progressive_mode && !codec.arith_code &&
           codec.data_precision == BITS_IN_JSAMPLE && codec.comps_in_scan == codec.num_components &&
           codec.Ss == 0 && codec.Se == DCTSIZE2 - 1 && codec.Ah == 0 && codec.Al == 0;
}

/// The table of a component where it has one for baseline files.
const JQUANT_TBL *stepsOf(const jpeg_decompress_struct &codec, int number) {
    const JQUANT_TBL *table = number < NUM_QUANT_TBLS ? codec.quant_tbl_ptrs[number] : nullptr;
    const bool isBaseline =
        table && *std::max_element(std::begin(table->quantval), std::end(table->quantval)) <=
                     BlockTransform::kMostStep;
    return isBaseline ? table : nullptr;
}

std::optional<Part> partOf(const jpeg_decompress_struct &codec, const jpeg_component_info &info,
                           int eighths) {
    const JQUANT_TBL *steps = stepsOf(codec, info.quant_tbl_no);
    if (!steps || std::max(info.dc_tbl_no, info.ac_tbl_no) >= NUM_HUFF_TBLS) {
        return std::nullopt;
    }
    auto firstCode = HuffmanCode::of(codec.dc_huff_tbl_ptrs[info.dc_tbl_no]);
    auto furtherCode = HuffmanCode::of(codec.ac_huff_tbl_ptrs[info.ac_tbl_no]);
    if (!firstCode || !furtherCode) {
        return std::nullopt;
    }
    // A component alone in its scan has groups of one block, whatever its sampling says.
    const bool isAlone = codec.comps_in_scan == 1;
    return Part{std::move(*firstCode),
                CoefficientCode(std::move(*furtherCode)),
                BlockTransform(*steps, eighths),
                static_cast<std::size_t>(info.component_index),
                isAlone ? 1 : info.h_samp_factor,
                isAlone ? 1 : info.v_samp_factor};
}

PlanarImage roomFor(const jpeg_decompress_struct &codec, int eighths) {
    const auto side = [eighths](JDIMENSION pixels, int factor, int most) {
        return quotientUp(long(pixels) * factor * eighths, long(most) * DCTSIZE);
    };
    PlanarImage image(side(codec.image_width, 1, 1), side(codec.image_height, 1, 1));
    for (int i = 0; i < codec.num_components; ++i) {
        const jpeg_component_info &info = codec.comp_info[i];
        image.planes.emplace_back(
            side(codec.image_width, info.h_samp_factor, codec.max_h_samp_factor),
            side(codec.image_height, info.v_samp_factor, codec.max_v_samp_factor));
    }
    return image;
}

/// Puts a block's samples into `plane` as far as they are not beyond its edges. Those too many at
/// the right give way to the next block's.
void put(const BlockTransform::Samples &samples, Plane &plane, int left, int top, int eighths) {
    constexpr int kStride = BlockTransform::kMostEighths;
    const int rows = std::min(eighths, plane.height() - top);
    const int columns = std::min(kStride, plane.width() - left);
    for (int y = 0; y < rows && columns > 0; ++y) {
        const std::uint8_t *from = samples.data() + static_cast<std::ptrdiff_t>(y) * kStride;
        if (columns == kStride) {
            std::memcpy(plane.row(top + y) + left, from, kStride);
        } else {
            std::memcpy(plane.row(top + y) + left, from, static_cast<std::size_t>(columns));
        }
    }
}

class ScanReader {
  public:
    ScanReader(const jpeg_decompress_struct &codec, int eighths)
        : m_codec(codec)
        , m_eighths(eighths)
        , m_image(roomFor(codec, eighths)) {}

    std::optional<PlanarImage> read() {
        if (!addParts()) {
            return std::nullopt;
        }
        EntropyCoded coded({m_codec.src->next_input_byte, m_codec.src->bytes_in_buffer},
                           kMostGroupBytes + BitReader::kPadding);
        const int groups = m_across * m_down;
        const int interval =
            m_codec.restart_interval != 0 ? static_cast<int>(m_codec.restart_interval) : groups;
        int restarts = 0;
        for (int first = 0; first < groups; first += interval) {
            const int end = std::min(groups, first + interval);
            const int marker = end == groups ? JPEG_EOI : JPEG_RST0 + restarts++ % 8;
            if (!coded.next() || coded.marker() != marker || !readInterval(coded, first, end)) {
                return std::nullopt;
            }
        }
        return std::move(m_image);
    }

  private:
    bool addParts() {
        int acrossOne = 1;
        int downOne = 1;
        for (int i = 0; i < m_codec.comps_in_scan; ++i) {
            auto part = partOf(m_codec, *m_codec.cur_comp_info[i], m_eighths);
            if (!part) {
                return false;
            }
            acrossOne = std::max(acrossOne, part->columns);
            downOne = std::max(downOne, part->rows);
            addPlaces(*part);
            m_parts.push_back(std::move(*part));
        }
        m_across = quotientUp(m_codec.image_width, long(acrossOne) * DCTSIZE);
        m_down = quotientUp(m_codec.image_height, long(downOne) * DCTSIZE);
        m_blocks.resize(m_places.size());
        return m_places.size() <= kMostBlocks;
    }

    void addPlaces(const Part &part) {
        for (int row = 0; row < part.rows; ++row) {
            for (int column = 0; column < part.columns; ++column) {
                m_places.push_back({m_parts.size(), column, row});
            }
        }
    }

    /// Reads the groups from `first` up to `end`, which must take the interval to its last byte.
    bool readInterval(const EntropyCoded &coded, int first, int end) {
        BitReader in(coded.begin());
        for (Part &part : m_parts) {
            part.predictor = 0;
        }
        for (int group = first; group < end; ++group) {
            if (!readGroup(in) || in.position() > coded.end()) {
                return false;
            }
            drawGroup(group % m_across, group / m_across);
        }
        return in.position() == coded.end();
    }

    bool readGroup(BitReader &in) {
        std::memset(m_blocks.data(), 0, m_blocks.size() * sizeof(CoefficientBlock));
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            if (!readBlock(in, m_parts[m_places[i].part], m_blocks[i])) {
                return false;
            }
        }
        return true;
    }

    static bool readBlock(BitReader &in, Part &part, CoefficientBlock &block) {
        constexpr int kLargestSize = 15;
        in.fill();
        const HuffmanSymbol size = part.firstCode.symbol(in.bits());
        if (size.bits == 0 || size.value > kLargestSize) {
            return false;
        }
        in.skip(size.bits);
        block[0] = static_cast<std::int16_t>(part.predictor + signedValue(in.bits(), size.value));
        part.predictor = block[0];
        in.skip(size.value);
        return part.furtherCode.read(in, block);
    }

    /// Apart from readGroup(), as a processor waits where it reads at once, many bytes together,
    /// what it has just written one by one.
    void drawGroup(int across, int down) {
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            const BlockPlace &place = m_places[i];
            const Part &part = m_parts[place.part];
            put(part.transform.samples(m_blocks[i]), m_image.planes[part.plane],
                (across * part.columns + place.column) * m_eighths,
                (down * part.rows + place.row) * m_eighths, m_eighths);
        }
    }

    const jpeg_decompress_struct &m_codec;
    int m_eighths;
    PlanarImage m_image;
    std::vector<Part> m_parts;
    std::vector<BlockPlace> m_places;
    std::vector<CoefficientBlock> m_blocks; ///< One for each place.
    int m_across = 0;                       ///< Groups side by side.
    int m_down = 0;
};

} // namespace

std::optional<PlanarImage> readReducedScan(const jpeg_decompress_struct &codec, int eighths) {
    return isCommon(codec) ? ScanReader(codec, eighths).read() : std::nullopt;
}

} // namespace folioforge
