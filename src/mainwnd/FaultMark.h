// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>

class QLineEdit;

namespace folioforge {

/// Marks the one field whose value a notice speaks of, until it is changed or disabled, or nothing
/// is wrong with it any more. Its edge stands out by the style sheet, and screen readers say what
/// is wrong.
class FaultMark : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Marks `field` in place of any other; `problem` says what is wrong with it.
    void put(QLineEdit &field, const QString &problem);
    /// Takes the mark away.
    void clear();
    /// The marked field; null where none is.
    [[nodiscard]] const QLineEdit *field() const { return m_field; }

  private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void show(bool fault, const QString &description);

    QPointer<QLineEdit> m_field;
    QString m_problem;
    QString m_description; ///< What screen readers said of the field before.
};

} // namespace folioforge
