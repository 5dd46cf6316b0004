// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>

namespace folioforge::test {

/// While it lives, fontconfig knows the fonts that were added and no others.
class InstalledFonts {
  public:
    InstalledFonts();
    ~InstalledFonts();
    InstalledFonts(const InstalledFonts &) = delete;
    InstalledFonts &operator=(const InstalledFonts &) = delete;

    /// Adds the font file at `path` under the family name `family`, whatever its own is.
    void add(const QString &path, const QString &family);

  private:
    void writeConfiguration() const;

    QTemporaryDir m_folder;
    QByteArray m_before;
    QString m_rules;
};

} // namespace folioforge::test
