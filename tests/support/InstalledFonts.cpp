// SPDX-License-Identifier: Apache-2.0

#include "support/InstalledFonts.h"

#include "support/Files.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace folioforge::test {

InstalledFonts::InstalledFonts()
    : m_before(qgetenv("FONTCONFIG_FILE")) {
    writeConfiguration();
    qputenv("FONTCONFIG_FILE", QFile::encodeName(m_folder.filePath(u"fonts.conf"_s)));
}

InstalledFonts::~InstalledFonts() {
    m_before.isEmpty() ? qunsetenv("FONTCONFIG_FILE") : qputenv("FONTCONFIG_FILE", m_before);
}

void InstalledFonts::add(const QString &path, const QString &family) {
    const QString copy = m_folder.filePath(QFileInfo(path).fileName());
    if (!QFile::copy(path, copy)) {
        qFatal("cannot copy %s", qPrintable(path));
    }
    m_rules += u"<match target=\"scan\">"
               "<test name=\"file\"><string>%1</string></test>"
               "<edit name=\"family\" mode=\"assign\"><string>%2</string></edit>"
               "</match>"_s.arg(copy, family);
    writeConfiguration();
}

void InstalledFonts::writeConfiguration() const {
    const QString text =
        u"<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
        "<dir>%1</dir><cachedir>%1/cache</cachedir>%2</fontconfig>"_s.arg(m_folder.path(), m_rules);
    writeFile(m_folder.filePath(u"fonts.conf"_s), text.toUtf8());
}

} // namespace folioforge::test
