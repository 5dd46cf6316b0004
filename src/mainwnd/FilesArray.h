// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/PDFFileInfo.h"

#include <QAbstractTableModel>
#include <QItemSelectionModel>

#include <span>
#include <vector>

namespace folioforge {

/// The file list in its arranged order, with its selection: the model of the file table.
///
/// Rows count from 0; the entries' own `index` counts from 1 and is brought in step by reindex().
/// Each change is announced once, however many rows it touches.
class FilesArray : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { NumberColumn, NameColumn, SizeColumn, DestinationColumn, ColumnCount };
    /// Whether the cell is a link to a finished PDF: a bool.
    static constexpr int kLinkRole = Qt::UserRole;
    /// The FileKind of the entry: an int.
    static constexpr int kKindRole = Qt::UserRole + 1;

    explicit FilesArray(QObject *parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }
    /// The entries in arranged order; valid until the list changes.
    [[nodiscard]] std::vector<const PDFFileInfo *> arrangedObjects() const;
    [[nodiscard]] const std::vector<PDFFileInfo> &entries() const { return m_entries; }
    [[nodiscard]] const PDFFileInfo &at(int row) const { return m_entries.at(std::size_t(row)); }

    /// Puts `entries` in at `row` (0 to count(); anything else appends), in their order.
    void insert(int row, std::vector<PDFFileInfo> entries);
    /// Removes the given rows, which ascend without repetition, and gives their entries; nothing is
    /// selected afterwards.
    std::vector<PDFFileInfo> takeRows(std::span<const int> rows);
    /// Puts `entries` in so that they stand at `rows`, which ascend, and selects them.
    void putBack(std::span<const int> rows, std::vector<PDFFileInfo> entries);
    /// Arranges the list once: row r becomes what row `order[r]` was. `order` is a permutation.
    void rearrange(std::span<const std::size_t> order);
    /// Takes the entry at `from` out and puts it in at `to`.
    void move(int from, int to);
    /// Sets every entry's index to its 1-based position.
    void reindex();

    void setIndex(int row, int index);
    void setStateIndex(int row, int state);
    void setStateIndexOfAll(int state);
    void setDestFilePathName(int row, const QString &path);
    /// Says `remarks` of the entry: a mark beside its name, in its tool tips and to a screen
    /// reader.
    void setRemarks(int row, const QStringList &remarks);

    /// The selection that the table shares.
    [[nodiscard]] QItemSelectionModel *selectionModel() { return &m_selection; }
    /// The selected rows, ascending.
    [[nodiscard]] std::vector<int> selectedRows() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    [[nodiscard]] std::vector<std::size_t> orderWithLast(std::span<const int> rows) const;
    void rowChanged(int row);

    std::vector<PDFFileInfo> m_entries;
    QItemSelectionModel m_selection;
};

} // namespace folioforge
