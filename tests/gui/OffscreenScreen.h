// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFile>
#include <QSize>
#include <QString>
#include <QTemporaryDir>

namespace folioforge::test {

/// Gives the application, which is yet to be made, one screen of `size`.
inline void useScreenOf(const QSize &size) {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("screen.json")));
    const QString screen = QStringLiteral(R"({"screens": [{"name": "test", "x": 0, "y": 0,
        "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                               .arg(size.width())
                               .arg(size.height());
    if (!file.open(QIODevice::WriteOnly) || file.write(screen.toUtf8()) < 0) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

} // namespace folioforge::test
