// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLineEdit>

namespace folioforge {

/// Says in a field that its number is one of points, and in its tool tip and to screen readers how
/// much that is in millimetres, or in inches where the locale measures in them.
class LengthHint : public QObject {
    Q_OBJECT

  public:
    /// Belongs to `field` and follows what is typed.
    explicit LengthHint(QLineEdit &field);

  private:
    void tell();

    QLineEdit &m_field;
    QString m_toolTip; ///< What the field itself says.
};

} // namespace folioforge
