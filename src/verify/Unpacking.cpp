// SPDX-License-Identifier: Apache-2.0

#include "verify/Unpacking.h"

#include "pdf/BoundedBuffer.h"
#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <zlib.h>

#include <array>
#include <cstdlib>
#include <new>
#include <vector>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// Undoes FlateDecode and remembers whether the data were whole.
class InflatePipeline final : public Pipeline {
  public:
    explicit InflatePipeline(Pipeline &target)
        : Pipeline("inflate", &target) {
        if (::inflateInit(&m_zlib) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~InflatePipeline() override { ::inflateEnd(&m_zlib); }

    void write(unsigned char const *data, size_t size) override {
        constexpr size_t kMaxAtOnce = 1 << 30;
        while (size > kMaxAtOnce) {
            write(data, kMaxAtOnce);
            data += kMaxAtOnce;
            size -= kMaxAtOnce;
        }
        m_zlib.next_in = const_cast<unsigned char *>(data); // NOLINT: zlib only reads it.
        m_zlib.avail_in = static_cast<uInt>(size);
        while (m_result == Z_OK && m_zlib.avail_in > 0) {
            inflatePiece();
        }
    }
    void finish() override { getNext()->finish(); }

    [[nodiscard]] bool isWhole() const { return m_result == Z_STREAM_END; }

  private:
    void inflatePiece() {
        m_zlib.next_out = m_piece.data();
        m_zlib.avail_out = static_cast<uInt>(m_piece.size());
        m_result = ::inflate(&m_zlib, Z_NO_FLUSH);
        if (m_result == Z_MEM_ERROR) {
            throw std::bad_alloc();
        }
        if (const size_t got = m_piece.size() - m_zlib.avail_out; got > 0) {
            getNext()->write(m_piece.data(), got);
        }
    }

    z_stream m_zlib = {};
    int m_result = Z_OK;
    std::array<unsigned char, 1 << 16> m_piece{};
};

/// The value that the Paeth filter adds (ISO 15948, 9.4).
int paeth(int left, int above, int corner) {
    const int guess = left + above - corner;
    const int toLeft = std::abs(guess - left);
    const int toAbove = std::abs(guess - above);
    const int toCorner = std::abs(guess - corner);
    return toLeft <= toAbove && toLeft <= toCorner ? left : toAbove <= toCorner ? above : corner;
}

/// Undoes the filters of PNG rows (ISO 32000-1, 7.4.4.4).
class RowPipeline final : public Pipeline {
  public:
    RowPipeline(Pipeline &target, std::size_t rowBytes, std::size_t pixelBytes)
        : Pipeline("rows", &target)
        , m_pixelBytes(pixelBytes)
        , m_row(rowBytes)
        , m_above(rowBytes) {}

    void write(unsigned char const *data, size_t size) override {
        for (; size > 0; ++data, --size) {
            if (m_filter < 0) {
                m_filter = *data;
                m_isValid = m_isValid && m_filter <= 4;
            } else {
                m_row[m_at] = static_cast<unsigned char>(*data + predicted());
                if (++m_at == m_row.size()) {
                    endRow();
                }
            }
        }
    }
    void finish() override { getNext()->finish(); }

    /// Whether the data ended with a row, and all rows had filters that there are.
    [[nodiscard]] bool isWhole() const { return m_isValid && m_filter < 0; }

  private:
    [[nodiscard]] int predicted() const {
        const bool hasLeft = m_at >= m_pixelBytes;
        const int left = hasLeft ? m_row[m_at - m_pixelBytes] : 0;
        const int above = m_above[m_at];
        switch (m_filter) {
        case 1:
            return left;
        case 2:
            return above;
        case 3:
            return (left + above) / 2;
        case 4:
            return paeth(left, above, hasLeft ? m_above[m_at - m_pixelBytes] : 0);
        default:
            return 0;
        }
    }
    void endRow() {
        getNext()->write(m_row.data(), m_row.size());
        m_above.swap(m_row);
        m_at = 0;
        m_filter = -1;
    }

    std::size_t m_pixelBytes;
    std::vector<unsigned char> m_row;
    std::vector<unsigned char> m_above;
    std::size_t m_at = 0;
    int m_filter = -1; ///< Of the row; below 0 before it is read.
    bool m_isValid = true;
};

std::size_t parameter(const Object &parameters, const char *key, int usual) {
    constexpr int kMax = 1 << 20;
    Object stated = entry(parameters, key);
    const int value = stated.isInteger() ? stated.getIntValueAsInt() : usual;
    return static_cast<std::size_t>(value > 0 && value <= kMax ? value : usual);
}

bool inflate(Object stream, Pipeline &target) {
    InflatePipeline inflating(target);
    return stream.pipeStreamData(&inflating, nullptr, 0, qpdf_dl_none, true) && inflating.isWhole();
}

bool inflateRows(const Object &stream, const Object &parameters, Pipeline &target) {
    constexpr std::size_t kByte = 8;
    const std::size_t pixelBits =
        parameter(parameters, "/Colors", 1) * parameter(parameters, "/BitsPerComponent", 8);
    const std::size_t rowBytes =
        (pixelBits * parameter(parameters, "/Columns", 1) + kByte - 1) / kByte;
    constexpr std::size_t kMaxRow = 64 << 20; // A picture's row has some megabytes at most.
    if (rowBytes > kMaxRow) {
        return false;
    }
    RowPipeline rows(target, rowBytes, std::max<std::size_t>(1, pixelBits / kByte));
    return inflate(stream, rows) && rows.isWhole();
}

} // namespace

bool unpack(QPDFObjectHandle stream, Unpacking unpacking, Pipeline &target) {
    constexpr std::size_t kFirstOfPng = 10;
    const Object dictionary = stream.getDict();
    const Object parameters = onlyItem(entry(dictionary, "/DecodeParms"));
    const bool isFlate = onlyItem(entry(dictionary, "/Filter")).isNameAndEquals("/FlateDecode");
    const std::size_t predictor = parameter(parameters, "/Predictor", 1);
    if (unpacking == Unpacking::None) {
        return stream.pipeStreamData(&target, nullptr, 0, qpdf_dl_none, true);
    }
    if (isFlate && (unpacking == Unpacking::Rows || predictor == 1)) {
        return inflate(stream, target);
    }
    if (isFlate && predictor >= kFirstOfPng) {
        return inflateRows(stream, parameters, target);
    }
    bool isUnpacked = false;
    return stream.pipeStreamData(&target, &isUnpacked, 0, qpdf_dl_specialized, true) &&
           (isUnpacked || !Object(dictionary).hasKey("/Filter"));
}

std::optional<std::string> unpacked(const QPDFObjectHandle &stream, std::size_t limit) {
    std::string text;
    BoundedBuffer target(text, limit);
    try {
        return unpack(stream, Unpacking::Samples, target) ? std::optional(std::move(text))
                                                          : std::nullopt;
    } catch (const TooLong &) {
        return std::nullopt;
    }
}

} // namespace folioforge
