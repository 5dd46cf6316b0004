#include "compress/jpeg/ReducedScan.h"

#include "compress/jpeg/BitReader.h"
#include "compress/jpeg/BlockTransform.h"
#include "compress/jpeg/CoefficientCode.h"
#include "compress/jpeg/EntropyCoded.h"
#include "compress/jpeg/HuffmanCode.h"
#include "compress/jpeg/JpegColor.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

/// Blocks of a group at most (ITU-T T.81, B.2.3).
constexpr std::size_t kMaxBlocks = D_MAX_BLOCKS_IN_MCU;

/// What one group can take behind the end of the data before that is noticed.
constexpr std::size_t kMaxGroupBytes = kMaxBlocks * DCTSIZE2 * kMaxCoefficientBits / 8 + 1;

/// A component of the picture, with the names that libjpeg has for its codes: DC for the first
/// coefficient of a block, AC for the others.
struct Component {
    HuffmanCode dcCode;
    CoefficientCode acCode;
    BlockTransform transform;
    std::size_t plane = 0;
    int columns = 1; ///< Blocks side by side in a group.
    int rows = 1;
    int predictor = 0;
};

/// The place of a block in a group, the blocks of all components that stand together (an MCU).
struct BlockPlace {
    std::size_t component = 0;
    int column = 0;
    int row = 0;
};

int quotientUp(long dividend, long divisor) {
    return static_cast<int>((dividend + divisor - 1) / divisor);
}

/// A component alone in its scan has groups of one block, whatever its sampling says.
bool isAlone(const jpeg_decompress_struct &codec) {
    return codec.comps_in_scan == 1;
}

/// Colour may be kept at half the size of brightness, as it will be again. Light and inks are of
/// one size, to which only libjpeg brings them.
bool isSampledWellEnough(const jpeg_decompress_struct &codec) {
    const int most = isPlain(codec.jpeg_color_space) ? 1 : 2;
    const std::span components(codec.comp_info, static_cast<std::size_t>(codec.num_components));
    return std::ranges::all_of(components, [&](const jpeg_component_info &info) {
        return most * info.h_samp_factor >= codec.max_h_samp_factor &&
               most * info.v_samp_factor >= codec.max_v_samp_factor;
    });
}

/// libjpeg has seen to it that the scan names no component twice.
bool isCommon(const jpeg_decompress_struct &codec) {
    return !codec.progressive_mode && !codec.arith_code &&
           codec.data_precision == BITS_IN_JSAMPLE && codec.comps_in_scan == codec.num_components &&
           codec.Ss == 0 && codec.Se == DCTSIZE2 - 1 && codec.Ah == 0 && codec.Al == 0 &&
           isSampledWellEnough(codec);
}

/// The table of a component where it has one for baseline files.
const JQUANT_TBL *stepsOf(const jpeg_decompress_struct &codec, int number) {
    const JQUANT_TBL *table = number < NUM_QUANT_TBLS ? codec.quant_tbl_ptrs[number] : nullptr;
    const bool isBaseline =
        table && *std::max_element(std::begin(table->quantval), std::end(table->quantval)) <=
                     BlockTransform::kMaxStep;
    return isBaseline ? table : nullptr;
}

std::optional<Component> componentOf(const jpeg_decompress_struct &codec,
                                     const jpeg_component_info &info, int eighths) {
    constexpr int kAnyByte = 255;
    const JQUANT_TBL *steps = stepsOf(codec, info.quant_tbl_no);
    if (!steps || std::max(info.dc_tbl_no, info.ac_tbl_no) >= NUM_HUFF_TBLS) {
        return std::nullopt;
    }
    auto dcCode = HuffmanCode::of(codec.dc_huff_tbl_ptrs[info.dc_tbl_no], kMaxSize);
    auto acCode = HuffmanCode::of(codec.ac_huff_tbl_ptrs[info.ac_tbl_no], kAnyByte);
    if (!dcCode || !acCode) {
        return std::nullopt;
    }
    return Component{std::move(*dcCode),
                     CoefficientCode(std::move(*acCode)),
                     BlockTransform(*steps, eighths),
                     static_cast<std::size_t>(info.component_index),
                     isAlone(codec) ? 1 : info.h_samp_factor,
                     isAlone(codec) ? 1 : info.v_samp_factor};
}

/// The components of the scan in its order; none where one of them is not common.
std::vector<Component> componentsOf(const jpeg_decompress_struct &codec, int eighths) {
    std::vector<Component> components;
    for (int i = 0; i < codec.comps_in_scan; ++i) {
        auto component = componentOf(codec, *codec.cur_comp_info[i], eighths);
        if (!component) {
            return {};
        }
        components.push_back(std::move(*component));
    }
    return components;
}

std::vector<BlockPlace> placesOf(const std::vector<Component> &components) {
    std::vector<BlockPlace> places;
    for (std::size_t i = 0; i < components.size(); ++i) {
        for (int row = 0; row < components[i].rows; ++row) {
            for (int column = 0; column < components[i].columns; ++column) {
                places.push_back({i, column, row});
            }
        }
    }
    return places;
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

/// Draws a block whose place among those of its component is (column, row), as far as it is not
/// beyond the edges of `plane`. The samples too many at its right give way to the next block's.
void draw(const CoefficientBlock &block, const BlockTransform &transform, int column, int row,
          Plane &plane) {
    constexpr int kStride = BlockTransform::kMaxEighths;
    const BlockTransform::Samples samples = transform.samples(block);
    const int left = column * transform.eighths();
    const int top = row * transform.eighths();
    const int rows = std::min(transform.eighths(), plane.height() - top);
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
    ScanReader(const jpeg_decompress_struct &codec, std::vector<Component> components,
               std::vector<BlockPlace> places)
        : m_across(quotientUp(codec.image_width,
                              DCTSIZE * (isAlone(codec) ? 1L : codec.max_h_samp_factor)))
        , m_down(quotientUp(codec.image_height,
                            DCTSIZE * (isAlone(codec) ? 1L : codec.max_v_samp_factor)))
        , m_interval(static_cast<int>(codec.restart_interval))
        , m_components(std::move(components))
        , m_places(std::move(places))
        , m_blocks(m_places.size()) {}

    /// Reads the whole of `coded` into `image`. False where something is not in order.
    bool read(EntropyCoded coded, PlanarImage &image) {
        const int groups = m_across * m_down;
        const int interval = m_interval != 0 ? m_interval : groups;
        int restarts = 0;
        for (int first = 0; first < groups; first += interval) {
            const int end = std::min(groups, first + interval);
            const int marker = end == groups ? JPEG_EOI : JPEG_RST0 + restarts++ % 8;
            if (!coded.next() || coded.marker() != marker ||
                !readInterval(coded, first, end, image)) {
                return false;
            }
        }
        return true;
    }

  private:
    /// Reads the groups from `first` up to `end`, which must take the interval to its last byte.
    bool readInterval(const EntropyCoded &coded, int first, int end, PlanarImage &image) {
        BitReader in(coded.begin());
        for (Component &component : m_components) {
            component.predictor = 0;
        }
        for (int group = first; group < end; ++group) {
            if (!readGroup(in) || in.position() > coded.end()) {
                return false;
            }
            drawGroup(group % m_across, group / m_across, image);
        }
        return in.position() == coded.end();
    }

    bool readGroup(BitReader &in) {
        std::memset(m_blocks.data(), 0, m_blocks.size() * sizeof(CoefficientBlock));
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            if (!readBlock(in, m_components[m_places[i].component], m_blocks[i])) {
                return false;
            }
        }
        return true;
    }

    static bool readBlock(BitReader &in, Component &component, CoefficientBlock &block) {
        in.fill();
        const HuffmanSymbol size = component.dcCode.symbol(in.bits());
        if (size.bits == 0) {
            return false;
        }
        in.skip(size.bits);
        block[0] =
            static_cast<std::int16_t>(component.predictor + signedValue(in.bits(), size.value));
        component.predictor = block[0];
        in.skip(size.value);
        return component.acCode.read(in, block);
    }

    /// Apart from readGroup(), as a processor waits where it reads at once, many bytes together,
    /// what it has just written one by one.
    void drawGroup(int across, int down, PlanarImage &image) {
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            const Component &component = m_components[m_places[i].component];
            draw(m_blocks[i], component.transform, across * component.columns + m_places[i].column,
                 down * component.rows + m_places[i].row, image.planes[component.plane]);
        }
    }

    int m_across; ///< Groups side by side.
    int m_down;
    int m_interval; ///< Groups between restarts; 0 for none.
    std::vector<Component> m_components;
    std::vector<BlockPlace> m_places;
    std::vector<CoefficientBlock> m_blocks; ///< One for each place.
};

} // namespace

std::optional<PlanarImage> readReducedScan(const jpeg_decompress_struct &codec, int eighths) {
    if (eighths > BlockTransform::kMaxEighths || !isCommon(codec)) {
        return std::nullopt;
    }
    std::vector<Component> components = componentsOf(codec, eighths);
    std::vector<BlockPlace> places = placesOf(components);
    if (places.empty() || places.size() > kMaxBlocks) {
        return std::nullopt;
    }
    PlanarImage image = roomFor(codec, eighths);
    ScanReader reader(codec, std::move(components), std::move(places));
    const bool isWhole = reader.read({{codec.src->next_input_byte, codec.src->bytes_in_buffer},
                                      kMaxGroupBytes + BitReader::kPadding},
                                     image);
    return isWhole ? std::optional(std::move(image)) : std::nullopt;
}

} // namespace folioforge
