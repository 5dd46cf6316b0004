// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/ColumnWidths.h"

#include "mainwnd/FilesArray.h"
#include "skin/TextScale.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace folioforge {

namespace {

constexpr int kNumberWidth = 52;
constexpr int kSizeWidth = 110;
constexpr int kDestinationWidth = 160;
constexpr int kMinNameWidth = 120;
constexpr int kMinWidth = 40;

} // namespace

ColumnWidths::ColumnWidths(QTableView &table)
    : QObject(&table)
    , m_table(table) {}

void ColumnWidths::layOut() {
    QHeaderView *header = m_table.horizontalHeader();
    header->setMinimumSectionSize(kMinWidth);
    connect(header, &QHeaderView::sectionResized, this, &ColumnWidths::dragged,
            Qt::UniqueConnection);
    setWidths(m_shares.empty() ? firstWidths() : sharedWidths());
}

void ColumnWidths::setShares(const std::vector<double> &shares) {
    constexpr double kRounding = 0.01;
    const double whole = std::accumulate(shares.begin(), shares.end(), 0.0);
    const bool areShares = shares.size() == FilesArray::ColumnCount &&
                           std::ranges::all_of(shares, [](double share) { return share > 0; }) &&
                           std::abs(whole - 1) < kRounding;
    if (areShares) {
        m_shares = shares;
        layOut();
    }
}

/// What a column gains the next one loses, so that the other edges stay.
void ColumnWidths::dragged(int column, int before, int now) {
    if (m_isSetting) {
        return;
    }
    std::vector<int> widths;
    widths.reserve(FilesArray::ColumnCount);
    for (int i = 0; i < FilesArray::ColumnCount; ++i) {
        widths.push_back(i == column ? before : m_table.columnWidth(i));
    }
    const auto next = static_cast<std::size_t>(column) + 1;
    if (next < widths.size()) {
        const int gain = std::min(now - before, widths[next] - kMinWidth);
        widths[next - 1] += gain;
        widths[next] -= gain;
        const double whole = std::accumulate(widths.begin(), widths.end(), 0);
        m_shares.clear();
        std::ranges::transform(widths, std::back_inserter(m_shares),
                               [whole](int width) { return width / whole; });
    }
    setWidths(widths);
}

void ColumnWidths::setWidths(const std::vector<int> &widths) {
    const QScopedValueRollback setting(m_isSetting, true);
    for (int i = 0; i < FilesArray::ColumnCount; ++i) {
        m_table.setColumnWidth(i, widths[static_cast<std::size_t>(i)]);
    }
}

std::vector<int> ColumnWidths::firstWidths() const {
    const int number = scaledToText(kNumberWidth);
    const int size = scaledToText(kSizeWidth);
    const int destination = scaledToText(kDestinationWidth);
    return {number, std::max(room() - number - size - destination, kMinNameWidth), size,
            destination};
}

/// Each edge is rounded for itself, so that the last one is the end of the table.
std::vector<int> ColumnWidths::sharedWidths() const {
    std::vector<int> widths;
    double share = 0;
    int edge = 0;
    for (const double own : m_shares) {
        share += own;
        const int next = static_cast<int>(std::lround(share * room()));
        widths.push_back(std::max(next - edge, kMinWidth));
        edge = next;
    }
    return widths;
}

int ColumnWidths::room() const {
    return m_table.viewport()->width();
}

} // namespace folioforge
