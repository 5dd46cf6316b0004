// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinImage.h"

#include <QPushButton>
#include <QRect>

namespace folioforge {

/// A push button drawn from images: normal, hover, pressed and disabled looks.
///
/// It follows the mouse itself and fires only when the mouse is released inside it; from the
/// keyboard it is an ordinary button, pressed by Space, Return and Enter. A button without images
/// looks and works like any push button with its text.
class SkinButton : public QPushButton {
    Q_OBJECT

  public:
    explicit SkinButton(QWidget *parent = nullptr);

    /// Keeps `image` as the normal look and shows it.
    void setNormalImage(const SkinImage &image);
    /// Keep a look; what is shown does not change.
    void setMouseOnImage(const SkinImage &image) { m_imageOn = image; }
    void setMouseDownImage(const SkinImage &image) { m_imageDown = image; }
    void setDisableImage(const SkinImage &image) { m_imageDisable = image; }

    /// Fixes the button's size, in place of the least size that the style sheet gives all buttons.
    void fixSize(const QSize &size);
    /// Shows the normal look of an enabled button.
    void showNormalImage();
    /// Enables or disables the button and shows the normal or the disabled look, even where it was
    /// enabled or disabled before: a stale hover look ends.
    void setEnabled(bool enabled);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    // ---- Kept for callers alone: nothing in the program calls these --------------------------

    /// Takes `image` as the normal look and derives the others: hover at full opacity, pressed at
    /// 0.7 and disabled at 0.4 of it. An empty image empties all looks.
    void setImage(const SkinImage &image);
    /// The look that the button shows now.
    [[nodiscard]] const SkinImage &image() const { return m_shown; }
    [[nodiscard]] const SkinImage &mouseOnImage() const { return m_imageOn; }
    [[nodiscard]] const SkinImage &mouseDownImage() const { return m_imageDown; }
    [[nodiscard]] const SkinImage &normalImage() const { return m_imageNormal; }
    [[nodiscard]] const SkinImage &disableImage() const { return m_imageDisable; }
    /// Where the button follows the pointer: always its bounds.
    [[nodiscard]] QRect tracking() const { return m_tracking; }

  protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] bool isSkinned() const { return !m_imageNormal.isNull(); }
    void showImage(const SkinImage &image);
    void showEnabledLook();

    SkinImage m_imageOn;
    SkinImage m_imageDown;
    SkinImage m_imageNormal;
    SkinImage m_imageDisable;
    QRect m_tracking;
    QSize m_fixedSize; ///< Not valid where the size is not fixed.
    SkinImage m_shown;
    /// The pointer left during a drag. The system reports that only when the mouse is released.
    bool m_leftInDrag = false;
};

} // namespace folioforge
