// SPDX-License-Identifier: Apache-2.0

#include "cli/Versions.h"

#include <QStringList>
#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace folioforge {

QString toolVersion() {
    return u"folioforge-cli " FOLIOFORGE_VERSION ""_s;
}

std::vector<std::pair<QString, QString>> libraryVersions() {
    std::vector<std::pair<QString, QString>> versions{{u"Qt"_s, QString::fromLatin1(qVersion())}};
    const QString others = QStringLiteral(FOLIOFORGE_LIBRARIES); // "qpdf 11.3.0,HarfBuzz 6.0.0"
    for (const QString &library : others.split(u',')) {
        versions.emplace_back(library.section(u' ', 0, -2), library.section(u' ', -1));
    }
    return versions;
}

} // namespace folioforge
