// SPDX-License-Identifier: Apache-2.0

#include "image/RowFilter.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/Parallel.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

namespace folioforge {

namespace {

enum RowFilter : uchar { None, Sub, Up, Average, Paeth, FilterCount };

uchar paethPredictor(int left, int up, int upLeft) {
    const int toLeft = std::abs(up - upLeft);
    const int toUp = std::abs(left - upLeft);
    const int toUpLeft = std::abs(left + up - 2 * upLeft);
    const int best = toUp <= toUpLeft ? up : upLeft;
    return static_cast<uchar>(toLeft <= toUp && toLeft <= toUpLeft ? left : best);
}

/// A row with the row above it, both preceded by a pixel of zeros so that the first pixel needs no
/// case of its own.
struct RowPair {
    const uchar *current;
    const uchar *above;
    qsizetype size;
    int pixel;
};

template<typename Predict> void filterWith(const RowPair &row, uchar *out, const Predict &predict) {
    const uchar *left = row.current - row.pixel;
    const uchar *upLeft = row.above - row.pixel;
    for (qsizetype i = 0; i < row.size; ++i) {
        out[i] = static_cast<uchar>(row.current[i] - predict(left[i], row.above[i], upLeft[i]));
    }
}

void applyFilter(RowFilter filter, const RowPair &row, uchar *out) {
    switch (filter) {
    case Sub:
        filterWith(row, out, [](int left, int, int) { return left; });
        break;
    case Up:
        filterWith(row, out, [](int, int up, int) { return up; });
        break;
    case Average:
        filterWith(row, out, [](int left, int up, int) { return (left + up) / 2; });
        break;
    case Paeth:
        filterWith(row, out,
                   [](int left, int up, int upLeft) { return paethPredictor(left, up, upLeft); });
        break;
    default:
        std::memcpy(out, row.current, static_cast<size_t>(row.size));
    }
}

/// The sum of the absolute values of the bytes as signed numbers: the usual estimate of how badly a
/// filtered row compresses (ISO 15948, 12.8).
qint64 filterCost(const uchar *bytes, qsizetype size) {
    qint64 sum = 0;
    constexpr qsizetype kBlock = 4096;
    for (qsizetype start = 0; start < size; start += kBlock) {
        int part = 0;
        const qsizetype end = std::min(start + kBlock, size);
        for (qsizetype i = start; i < end; ++i) {
            part += std::abs(static_cast<signed char>(bytes[i]));
        }
        sum += part;
    }
    return sum;
}

/// Filters rows one after the other, keeping the two rows and the trial rows it needs.
class RowFilterer {
  public:
    RowFilterer(qsizetype stride, int pixelBytes)
        : m_stride(stride)
        , m_pixel(pixelBytes)
        , m_current(static_cast<size_t>(stride + pixelBytes))
        , m_above(static_cast<size_t>(stride + pixelBytes))
        , m_trial(static_cast<size_t>(stride)) {}

    void setAbove(const uchar *row) {
        std::memcpy(m_above.data() + m_pixel, row, static_cast<size_t>(m_stride));
    }

    /// Writes the filter's number and the filtered row to `out`.
    void filter(const uchar *row, uchar *out) {
        std::memcpy(m_current.data() + m_pixel, row, static_cast<size_t>(m_stride));
        const RowPair pair{m_current.data() + m_pixel, m_above.data() + m_pixel, m_stride, m_pixel};
        qint64 least = std::numeric_limits<qint64>::max();
        for (const RowFilter filter : {Up, Sub, None, Paeth, Average}) {
            applyFilter(filter, pair, m_trial.data());
            const qint64 cost = filterCost(m_trial.data(), m_stride);
            if (cost < least) {
                least = cost;
                out[0] = filter;
                std::memcpy(out + 1, m_trial.data(), static_cast<size_t>(m_stride));
            }
            if (cost == 0) {
                break;
            }
        }
        m_current.swap(m_above);
    }

  private:
    qsizetype m_stride;
    int m_pixel;
    std::vector<uchar> m_current;
    std::vector<uchar> m_above;
    std::vector<uchar> m_trial;
};

template<typename Predict>
void unfilterWith(uchar *row, const uchar *above, qsizetype size, int pixel,
                  const Predict &predict) {
    for (qsizetype i = 0; i < size; ++i) {
        const int left = i < pixel ? 0 : row[i - pixel];
        const int upLeft = i < pixel ? 0 : above[i - pixel];
        row[i] = static_cast<uchar>(row[i] + predict(left, above[i], upLeft));
    }
}

void unfilterRow(uchar filter, uchar *row, const uchar *above, qsizetype size, int pixel) {
    switch (filter) {
    case None:
        break;
    case Sub:
        unfilterWith(row, above, size, pixel, [](int left, int, int) { return left; });
        break;
    case Up:
        unfilterWith(row, above, size, pixel, [](int, int up, int) { return up; });
        break;
    case Average:
        unfilterWith(row, above, size, pixel,
                     [](int left, int up, int) { return (left + up) / 2; });
        break;
    case Paeth:
        unfilterWith(row, above, size, pixel, paethPredictor);
        break;
    default:
        throw Error(Reasons::tr("The image's rows are damaged"));
    }
}

} // namespace

QByteArray filterRows(const QByteArray &rows, qsizetype stride, int pixelBytes) {
    const auto height = static_cast<int>(stride > 0 ? rows.size() / stride : 0);
    QByteArray out(height * (stride + 1), Qt::Uninitialized);
    const auto *source = reinterpret_cast<const uchar *>(rows.constData());
    auto *target = reinterpret_cast<uchar *>(out.data());
    forEachBand(height, stride, [&](int first, int end) {
        RowFilterer filterer(stride, pixelBytes);
        if (first > 0) {
            filterer.setAbove(source + (first - 1) * stride);
        }
        for (int y = first; y < end; ++y) {
            filterer.filter(source + y * stride, target + y * (stride + 1));
        }
    });
    return out;
}

QByteArray filterRowsUp(const QByteArray &rows, qsizetype stride) {
    QByteArray out(rows.size() / stride * (stride + 1), Qt::Uninitialized);
    const std::vector<uchar> zeros(static_cast<size_t>(stride));
    const uchar *above = zeros.data();
    const auto *row = reinterpret_cast<const uchar *>(rows.constData());
    auto *target = reinterpret_cast<uchar *>(out.data());
    for (auto *const end = target + out.size(); target != end; target += stride + 1) {
        target[0] = Up;
        applyFilter(Up, {row, above, stride, 0}, target + 1);
        above = row;
        row += stride;
    }
    return out;
}

QByteArray unfilterRows(QByteArray filtered, int height, qsizetype stride, int pixelBytes) {
    if (filtered.size() < height * (stride + 1)) {
        throw Error(Reasons::tr("The image has fewer rows than its header says"));
    }
    auto *bytes = reinterpret_cast<uchar *>(filtered.data());
    const std::vector<uchar> zeros(static_cast<size_t>(stride));
    const uchar *above = zeros.data();
    for (int y = 0; y < height; ++y) {
        const uchar *source = bytes + y * (stride + 1);
        const uchar filter = source[0];
        // Rows close up as their filter numbers go, so each moves towards the start.
        uchar *row = bytes + y * stride;
        std::memmove(row, source + 1, static_cast<size_t>(stride));
        unfilterRow(filter, row, above, stride, pixelBytes);
        above = row;
    }
    filtered.truncate(height * stride);
    return filtered;
}

void dropUnknownFilters(QByteArray &filtered, qsizetype rowBytes) {
    for (qsizetype at = 0; at < filtered.size(); at += rowBytes) {
        if (static_cast<uchar>(filtered[at]) >= FilterCount) {
            filtered[at] = '\0';
        }
    }
}

} // namespace folioforge
