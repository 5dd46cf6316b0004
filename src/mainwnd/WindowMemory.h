// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSize>
#include <QString>

#include <optional>
#include <vector>

class QSettings;

namespace folioforge {

/// What the window keeps from one start to the next, beside the output folder: how large it is, how
/// wide its columns are, and where its panels were. What stands in its fields it does not keep.
class WindowMemory {
  public:
    explicit WindowMemory(QSettings &settings);

    /// The window's size in points without its options panel; nothing where none is kept.
    [[nodiscard]] std::optional<QSize> size() const;
    void keepSize(const QSize &size);

    /// The shares that the columns have of the list's width; none where none are kept.
    [[nodiscard]] std::vector<double> columnShares() const;
    void keepColumnShares(const std::vector<double> &shares);

    /// The folder in which the panel called `panel` was last; `otherwise` where none is kept, or
    /// where it is gone.
    [[nodiscard]] QString panelFolder(const QString &panel, const QString &otherwise) const;
    void keepPanelFolder(const QString &panel, const QString &folder);

  private:
    QSettings &m_settings;
};

} // namespace folioforge
