// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace folioforge {

/// The window's background: a dark band of 58 points across the top, white below it.
class CycleSkinedView : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    /// Height of the band in points, beside texts of usual size.
    static constexpr int kBandHeight = 58;
    /// The band's grey: each component, 0 to 1.
    static constexpr float kBandGrey = 0.21956479121740835F;

  protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace folioforge
