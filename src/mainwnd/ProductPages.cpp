#include "mainwnd/ProductPages.h"

namespace folioforge {
namespace {

QUrl page(const QString &bundlePath, const QString &name) {
    return QUrl::fromLocalFile(
        QStringLiteral("%1/Contents/Resources/pages/%2").arg(bundlePath, name));
}

} // namespace

QUrl tutorialPage(const QString &bundlePath) {
    return page(bundlePath, QStringLiteral("tutorial.html"));
}

QUrl productPage(const QString &bundlePath) {
    return page(bundlePath, QStringLiteral("product.html"));
}

QUrl downloadPage(const QString &bundlePath) {
    QUrl url = productPage(bundlePath);
    url.setFragment(QStringLiteral("download"));
    return url;
}

} // namespace folioforge
