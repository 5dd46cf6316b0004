#include "convert/compress/LosslessCodec.h"

#include "convert/compress/BoundedText.h"
#include "error/Error.h"

#include <array>
#include <cstdlib>
#include <memory>

#include <libdeflate.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

namespace {

struct FreeCompressor {
    void operator()(libdeflate_compressor *compressor) const {
        libdeflate_free_compressor(compressor);
    }
};

std::uint8_t paeth(int left, int above, int corner) {
    const int guess = left + above - corner;
    const int toLeft = std::abs(guess - left);
    const int toAbove = std::abs(guess - above);
    const int toCorner = std::abs(guess - corner);
    const int nearest = toLeft <= toAbove && toLeft <= toCorner ? left
                        : toAbove <= toCorner                   ? above
                                                                : corner;
    return static_cast<std::uint8_t>(nearest);
}

/// What PNG filter `type` predicts for the byte at `i` of a row (PNG specification, 9.2).
std::uint8_t prediction(int type, const std::uint8_t *row, const std::uint8_t *above, std::size_t i,
                        std::size_t pixel) {
    const int left = i >= pixel ? row[i - pixel] : 0;
    const int up = above ? above[i] : 0;
    const int corner = above && i >= pixel ? above[i - pixel] : 0;
    switch (type) {
    case 1:
        return static_cast<std::uint8_t>(left);
    case 2:
        return static_cast<std::uint8_t>(up);
    case 4:
        return paeth(left, up, corner);
    default:
        return 0;
    }
}

/// Appends the row under the filter with the least sum of absolute differences, the rule of thumb
/// that the PNG specification gives (12.8).
void appendFiltered(std::string &out, const std::uint8_t *row, const std::uint8_t *above,
                    std::size_t size, std::size_t pixel) {
    std::string best;
    long bestSum = -1;
    for (const int type : std::array{0, 1, 2, 4}) {
        std::string candidate(1, static_cast<char>(type));
        long sum = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const auto difference =
                static_cast<std::int8_t>(row[i] - prediction(type, row, above, i, pixel));
            sum += std::abs(difference);
            candidate += static_cast<char>(difference);
        }
        if (bestSum < 0 || sum < bestSum) {
            bestSum = sum;
            best = std::move(candidate);
        }
    }
    out += best;
}

} // namespace

std::string decodeLossless(const std::string &data, const std::string &filter,
                           const std::string &parameters, std::size_t mostBytes) {
    if (filter.empty()) {
        return data;
    }
    std::string decoded;
    try {
        // A document of its own for each call: libqpdf's objects belong to one thread.
        QPDF scratch;
        scratch.emptyPDF();
        scratch.setSuppressWarnings(true);
        QPDFObjectHandle stream = scratch.newStream();
        const auto parsed = [](const std::string &text) {
            return text.empty() ? QPDFObjectHandle::newNull() : QPDFObjectHandle::parse(text);
        };
        stream.replaceStreamData(data, parsed(filter), parsed(parameters));
        BoundedText target(decoded, mostBytes);
        bool filtered = false;
        const bool whole = stream.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized, true);
        if (!filtered || !whole || scratch.anyWarnings()) {
            throw Error(QStringLiteral("damaged compressed data"));
        }
    } catch (const TooLong &) {
        throw Error(QStringLiteral("more data than the image's size allows"));
    } catch (const Error &) {
        throw;
    } catch (const std::exception &) {
        throw Error(QStringLiteral("damaged compressed data"));
    }
    return decoded;
}

std::string encodeFlate(const Raster &raster) {
    std::string rows;
    rows.reserve((raster.rowBytes() + 1) * static_cast<std::size_t>(raster.height));
    for (int y = 0; y < raster.height; ++y) {
        appendFiltered(rows, raster.row(y), y > 0 ? raster.row(y - 1) : nullptr, raster.rowBytes(),
                       static_cast<std::size_t>(raster.components()));
    }
    constexpr int kLevel = 6;
    const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(kLevel));
    std::string packed(libdeflate_zlib_compress_bound(compressor.get(), rows.size()), '\0');
    packed.resize(libdeflate_zlib_compress(compressor.get(), rows.data(), rows.size(),
                                           packed.data(), packed.size()));
    return packed;
}

} // namespace folioforge
