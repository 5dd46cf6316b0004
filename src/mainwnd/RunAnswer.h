// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Run.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace folioforge {

/// The line in the window's foot that says how the last run ended, with what can be done then.
class RunAnswer : public QWidget {
    Q_OBJECT

  public:
    explicit RunAnswer(QWidget *parent = nullptr);

    /// Shows how a run ended. A screen reader says it.
    void show(const RunSummary &summary);
    /// What the line says; empty where it is hidden.
    [[nodiscard]] QString text() const;

  Q_SIGNALS:
    void openAsked(const QString &path);
    void folderAsked(const QString &folder);
    /// The entries that are in no PDF are to be shown.
    void failuresAsked();

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    QPushButton *addButton(const QString &label, const QString &toolTip);
    void elide();

    QString m_text;
    QString m_path; ///< Of the one PDF that was made, else of any of them.
    QLabel *m_label;
    QPushButton *m_open;
    QPushButton *m_folder;
    QPushButton *m_failures;
};

} // namespace folioforge
