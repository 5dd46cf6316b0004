// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>
#include <QImage>
#include <QString>

#include <memory>

class QLabel;

namespace folioforge {

/// The controller of the About window: the application's icon, its version and the licences of
/// its libraries.
class AboutWndCtrl {
  public:
    /// Reads the bundle's property list and its icon; what is missing stays blank.
    explicit AboutWndCtrl(const QString &bundlePath);
    ~AboutWndCtrl();
    AboutWndCtrl(const AboutWndCtrl &) = delete;
    AboutWndCtrl &operator=(const AboutWndCtrl &) = delete;

    /// Shows the window in front of `parent`.
    void showWindow(QWidget *parent);
    [[nodiscard]] QDialog &window() const { return *m_window; }
    /// The loaded icon; empty when it could not be read.
    [[nodiscard]] const QImage &image() const { return m_image; }

  private:
    void awakeFromNib(const QString &bundlePath);

    std::unique_ptr<QDialog> m_window;
    QLabel *m_imageView; ///< The window's.
    QImage m_image;
};

} // namespace folioforge
