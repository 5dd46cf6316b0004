#pragma once

#include <QWidget>

namespace folioforge {

/// A drawer at the right of a window: shows the left part of its one child, which keeps its full
/// width while the drawer opens and closes.
class OptionsDrawer : public QWidget {
    Q_OBJECT

  public:
    explicit OptionsDrawer(QWidget *parent = nullptr);

    /// Width of the open drawer in points.
    static constexpr double kFullWidth = 342.0;

    /// Opens the drawer to `width` points; at 0 it is hidden and takes no focus.
    void setOpenWidth(int width);
    [[nodiscard]] int openWidth() const { return m_openWidth; }

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    void placeChild();

    int m_openWidth = static_cast<int>(kFullWidth);
};

} // namespace folioforge
