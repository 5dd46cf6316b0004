// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/FilesArray.h"

#include "mainwnd/EntryCells.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace folioforge {

FilesArray::FilesArray(QObject *parent)
    : QAbstractTableModel(parent)
    , m_selection(this) {}

std::vector<const PDFFileInfo *> FilesArray::arrangedObjects() const {
    std::vector<const PDFFileInfo *> entries;
    entries.reserve(m_entries.size());
    for (const PDFFileInfo &entry : m_entries) {
        entries.push_back(&entry);
    }
    return entries;
}

void FilesArray::insert(int row, std::vector<PDFFileInfo> entries) {
    if (entries.empty()) {
        return;
    }
    const int first = row < 0 || row > count() ? count() : row;
    beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
    m_entries.insert(m_entries.begin() + first, std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
    endInsertRows();
}

std::vector<PDFFileInfo> FilesArray::takeRows(std::span<const int> rows) {
    if (rows.empty()) {
        return {};
    }
    // A view selects the neighbour of a removed current row, and the next press of Delete would
    // remove it. So the selection is cleared first, and the neighbour only becomes current.
    const int gap = rows.front();
    m_selection.clear();
    const int removed = static_cast<int>(rows.size());
    int first = rows.front();
    if (rows.back() - first + 1 != removed) {
        rearrange(orderWithLast(rows));
        first = count() - removed;
    }
    beginRemoveRows({}, first, first + removed - 1);
    const auto begin = m_entries.begin() + first;
    std::vector<PDFFileInfo> taken(std::make_move_iterator(begin),
                                   std::make_move_iterator(begin + removed));
    m_entries.erase(begin, begin + removed);
    endRemoveRows();
    m_selection.setCurrentIndex(index(std::min(gap, count() - 1), NameColumn),
                                QItemSelectionModel::NoUpdate);
    return taken;
}

void FilesArray::putBack(std::span<const int> rows, std::vector<PDFFileInfo> entries) {
    insert(count(), std::move(entries));
    const std::vector<std::size_t> taken = orderWithLast(rows);
    std::vector<std::size_t> order(taken.size());
    for (std::size_t row = 0; row < taken.size(); ++row) {
        order[taken[row]] = row;
    }
    rearrange(order);
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::size_t first = i;
        while (i + 1 < rows.size() && rows[i + 1] == rows[i] + 1) {
            ++i;
        }
        selection.append({index(rows[first], 0), index(rows[i], ColumnCount - 1)});
    }
    m_selection.setCurrentIndex(index(rows.front(), NameColumn), QItemSelectionModel::NoUpdate);
    m_selection.select(selection, QItemSelectionModel::ClearAndSelect);
}

/// The order in which `rows` come last, where they are one block: a signal for each row would cost
/// every listener quadratic time.
std::vector<std::size_t> FilesArray::orderWithLast(std::span<const int> rows) const {
    std::vector<std::size_t> order;
    order.reserve(m_entries.size());
    auto next = rows.begin();
    for (int row = 0; row < count(); ++row) {
        if (next != rows.end() && *next == row) {
            ++next;
        } else {
            order.push_back(std::size_t(row));
        }
    }
    order.insert(order.end(), rows.begin(), rows.end());
    return order;
}

void FilesArray::rearrange(std::span<const std::size_t> order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<PDFFileInfo> arranged;
    arranged.reserve(m_entries.size());
    std::vector<int> newRow(m_entries.size());
    for (const std::size_t row : order) {
        newRow[row] = static_cast<int>(arranged.size());
        arranged.push_back(std::move(m_entries[row]));
    }
    m_entries = std::move(arranged);

    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &old : before) {
        after.append(index(newRow[std::size_t(old.row())], old.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void FilesArray::move(int from, int to) {
    if (from == to) {
        return;
    }
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    const auto first = m_entries.begin() + std::min(from, to);
    const auto last = m_entries.begin() + std::max(from, to) + 1;
    std::rotate(first, to > from ? first + 1 : last - 1, last);
    endMoveRows();
}

void FilesArray::reindex() {
    int position = 0;
    for (PDFFileInfo &entry : m_entries) {
        entry.setIndex(++position);
    }
    if (!isEmpty()) {
        Q_EMIT dataChanged(index(0, NumberColumn), index(count() - 1, NumberColumn));
    }
}

void FilesArray::setIndex(int row, int index) {
    m_entries.at(std::size_t(row)).setIndex(index);
    rowChanged(row);
}

void FilesArray::setStateIndex(int row, int state) {
    m_entries.at(std::size_t(row)).setStateIndex(state);
    rowChanged(row);
}

void FilesArray::setStateIndexOfAll(int state) {
    for (PDFFileInfo &entry : m_entries) {
        entry.setStateIndex(state);
    }
    if (!isEmpty()) {
        Q_EMIT dataChanged(index(0, DestinationColumn), index(count() - 1, DestinationColumn));
    }
}

void FilesArray::setDestFilePathName(int row, const QString &path) {
    m_entries.at(std::size_t(row)).setDestFilePathName(path);
    rowChanged(row);
}

void FilesArray::setRemarks(int row, const QStringList &remarks) {
    m_entries.at(std::size_t(row)).setRemarks(remarks);
    rowChanged(row);
}

std::vector<int> FilesArray::selectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange &range : m_selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

int FilesArray::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

int FilesArray::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FilesArray::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= count()) {
        return {};
    }
    return entryCell(at(index.row()), index.column(), role);
}

QVariant FilesArray::headerData(int section, Qt::Orientation orientation, int role) const {
    const std::array<QString, ColumnCount> titles{tr("No."), tr("Name"), tr("Size"),
                                                  tr("Destination")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= ColumnCount) {
        return {};
    }
    return titles.at(std::size_t(section));
}

void FilesArray::rowChanged(int row) {
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

} // namespace folioforge
