// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLineEdit>
#include <QToolButton>

namespace folioforge {

/// The eye in a password field: while it is on, the password can be read. It goes off with the
/// password, so that the next one is hidden again.
class PasswordEye : public QToolButton {
    Q_OBJECT

  public:
    /// Stands in `field`, which it belongs to, and follows it in the order of the Tab key; `name`
    /// is what screen readers say.
    PasswordEye(QLineEdit &field, const QString &name);

    [[nodiscard]] QSize sizeHint() const override;

  private:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showPassword(bool shown);

    QLineEdit &m_field;
};

} // namespace folioforge
