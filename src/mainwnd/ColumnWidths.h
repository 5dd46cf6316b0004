// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

#include <vector>

class QTableView;

namespace folioforge {

/// Shares out the width of the list among its columns, which always fill it. At first the names
/// take what the others leave. Once the user drags an edge, the columns keep their shares.
class ColumnWidths : public QObject {
    Q_OBJECT

  public:
    /// `table` owns it.
    explicit ColumnWidths(QTableView &table);

    /// To be called when the table has another width or header.
    void layOut();

    /// The shares that the columns have of the whole width; none until an edge was dragged.
    [[nodiscard]] const std::vector<double> &shares() const { return m_shares; }
    /// Gives the columns `shares`, unless these cannot be.
    void setShares(const std::vector<double> &shares);

  private:
    void dragged(int column, int before, int now);
    void setWidths(const std::vector<int> &widths);
    [[nodiscard]] std::vector<int> firstWidths() const;
    [[nodiscard]] std::vector<int> sharedWidths() const;
    [[nodiscard]] int room() const;

    QTableView &m_table;
    std::vector<double> m_shares; ///< Of the whole width; empty until an edge is dragged.
    bool m_isSetting = false;
};

} // namespace folioforge
