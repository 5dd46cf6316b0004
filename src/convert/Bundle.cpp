// SPDX-License-Identifier: Apache-2.0

#include "convert/Bundle.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QUrl page(const QString &bundlePath, const QString &name) {
    return QUrl::fromLocalFile(u"%1/Contents/Resources/pages/%2"_s.arg(bundlePath, name));
}

} // namespace

QString applicationBundlePath() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../.."_s);
}

QUrl tutorialPage(const QString &bundlePath) {
    return page(bundlePath, u"tutorial.html"_s);
}

QUrl productPage(const QString &bundlePath) {
    return page(bundlePath, u"product.html"_s);
}

QUrl downloadPage(const QString &bundlePath) {
    QUrl url = productPage(bundlePath);
    url.setFragment(u"download"_s);
    return url;
}

} // namespace folioforge
