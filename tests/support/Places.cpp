// SPDX-License-Identifier: Apache-2.0

#include "support/Places.h"

namespace folioforge::test {

QString inSource(const QString &path) {
    return QStringLiteral(FOLIOFORGE_SOURCE_TREE "/") + path;
}

QString inBuild(const QString &path) {
    return QStringLiteral(FOLIOFORGE_BUILD_TREE "/") + path;
}

QString madeBy(const QString &script) {
    return QStringLiteral(FOLIOFORGE_MADE_FOR_TESTS "/") + script;
}

QString bundlePath() {
    return inBuild(QStringLiteral("Folioforge.app"));
}

QString commandLineProgram() {
    return bundlePath() + QStringLiteral("/Contents/MacOS/folioforge-cli");
}

QString windowProgram() {
    return bundlePath() + QStringLiteral("/Contents/MacOS/folioforge");
}

} // namespace folioforge::test
