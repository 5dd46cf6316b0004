// SPDX-License-Identifier: Apache-2.0

#include "skin/ReadOnlyField.h"

#include <QAccessibleWidget>

namespace folioforge {

namespace {

/// The field as a text that has a value and no means to change it.
class ReadableText : public QAccessibleWidget {
  public:
    explicit ReadableText(ReadOnlyField *field)
        : QAccessibleWidget(field, QAccessible::EditableText)
        , m_field(*field) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? m_field.text() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

  private:
    ReadOnlyField &m_field;
};

QAccessibleInterface *makeReadable(const QString & /*className*/, QObject *object) {
    auto *field = qobject_cast<ReadOnlyField *>(object);
    return field ? new ReadableText(field) : nullptr;
}

} // namespace

ReadOnlyField::ReadOnlyField(QWidget *parent)
    : QLineEdit(parent) {
    setReadOnly(true);
    QAccessible::installFactory(makeReadable); // Installed once, however often.
}

} // namespace folioforge
