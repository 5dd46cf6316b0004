// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;

namespace folioforge {

/// The sheet that covers a window during a run. It takes mouse and keyboard from everything under
/// it, except for closing and quitting.
///
/// It is a widget in the window, because a window with a modal dialog cannot be closed.
class BusySheet : public QWidget {
    Q_OBJECT

  public:
    explicit BusySheet(QWidget *parent = nullptr);

    /// Covers the whole window and takes the focus.
    void beginSheet();
    /// Uncovers the window and gives the focus back to where it was.
    void endSheet();
    /// Says which file is being written and how many of `total` are done.
    void setFile(const QString &name, int done, int total);

  protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    QLabel *m_fileLabel;
    QLabel *m_countLabel;
    QPointer<QWidget> m_focusBefore;
};

} // namespace folioforge
