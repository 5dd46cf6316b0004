// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace folioforge {

/// The sheet that covers a window during a run. It takes mouse and keyboard from everything under
/// it, except for closing and quitting, and is a dialog to screen readers, which find what it
/// covers disabled.
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
    /// Says which file is being written.
    void setFile(const QString &name);
    /// Says how far the run is, in words and as a share from 0 to 1.
    void setProgress(const QString &words, double share);

  protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void disableWhatIsCovered();
    void enableWhatWasCovered();

    QLabel *m_fileLabel;
    QLabel *m_countLabel;
    QProgressBar *m_bar;
    QPointer<QWidget> m_focusBefore;
    QList<QPointer<QWidget>> m_covered; ///< What the sheet disabled.
};

} // namespace folioforge
