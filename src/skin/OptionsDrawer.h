// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QScrollArea;

namespace folioforge {

/// A drawer at the right of a window: shows the left part of its one panel, which keeps its full
/// width while the drawer opens and closes. In a drawer too low for it the panel scrolls.
class OptionsDrawer : public QWidget {
    Q_OBJECT

  public:
    explicit OptionsDrawer(QWidget *parent = nullptr);

    /// Width of the open drawer in points.
    static constexpr double kFullWidth = 342.0;

    /// Puts `panel` into the drawer, once. Its right margin must have room for a scroll bar.
    void setPanel(QWidget *panel);
    /// Opens the drawer to `width` points; at 0 it is hidden and takes no focus.
    void setOpenWidth(int width);
    /// Scrolls to `control` of the panel.
    void scrollTo(QWidget &control);
    [[nodiscard]] int openWidth() const { return m_openWidth; }

  protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void showFocused(QWidget *focused);

    QScrollArea *m_area;
    int m_openWidth = static_cast<int>(kFullWidth);
};

} // namespace folioforge
