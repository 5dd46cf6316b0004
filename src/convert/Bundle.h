// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QUrl>

namespace folioforge {

/// The bundle of the running program, which lies in its Contents/MacOS on every system.
QString applicationBundlePath();

/// The tutorial page that comes with the bundle at `bundlePath`.
QUrl tutorialPage(const QString &bundlePath);

/// The product page that comes with the bundle at `bundlePath`.
QUrl productPage(const QString &bundlePath);

/// The product page at its download section.
QUrl downloadPage(const QString &bundlePath);

} // namespace folioforge
