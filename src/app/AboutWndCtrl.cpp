// SPDX-License-Identifier: Apache-2.0

#include "app/AboutWndCtrl.h"

#include "compress/PropertyList.h"
#include "error/Error.h"
#include "ui_AboutWnd.h"

#include <QImageReader>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kIconSize = 128;

/// The bundle's property list; empty when it cannot be read.
QVariantMap bundleInfo(const QString &bundlePath) {
    try {
        return readPropertyList(u"%1/Contents/Info.plist"_s.arg(bundlePath));
    } catch (const Error &) {
        return {};
    }
}

/// The largest picture of an icon file.
QImage largestImage(const QString &path) {
    QImageReader reader(path);
    QImage largest = reader.read();
    for (int i = 1; i < reader.imageCount(); ++i) {
        if (!reader.jumpToImage(i)) {
            break;
        }
        if (const QImage image = reader.read(); image.width() > largest.width()) {
            largest = image;
        }
    }
    return largest;
}

QPixmap iconPixmap(const QImage &image, double scale) {
    const int pixels = qRound(kIconSize * scale);
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

} // namespace

AboutWndCtrl::AboutWndCtrl(const QString &bundlePath)
    : m_window(std::make_unique<QDialog>()) {
    Ui::AboutWnd layout;
    layout.setupUi(m_window.get());
    m_imageView = layout.m_imageView;
    const QVariant version = bundleInfo(bundlePath).value(u"CFBundleShortVersionString"_s);
    layout.versionLabel->setText(
        QCoreApplication::translate("AboutWnd", "Version %1").arg(version.toString()));
    layout.versionLabel->setVisible(version.isValid());
    awakeFromNib(bundlePath);
}

AboutWndCtrl::~AboutWndCtrl() = default;

void AboutWndCtrl::awakeFromNib(const QString &bundlePath) {
    const QString icon = bundleInfo(bundlePath).value(u"CFBundleIconFile"_s).toString();
    m_image = largestImage(u"%1/Contents/Resources/%2.icns"_s.arg(bundlePath, icon));
    if (!m_image.isNull()) {
        m_imageView->setPixmap(iconPixmap(m_image, m_window->devicePixelRatioF()));
    }
}

void AboutWndCtrl::showWindow(QWidget *parent) {
    m_window->setParent(parent, Qt::Dialog);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace folioforge
