// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace folioforge {

/// The window in the language of its user, as long as this lives: its texts, those of Qt's own
/// panels where the system has them, and the direction in which the window is read.
class Translations {
  public:
    /// Takes the first of `languages`, such as "de-AT" and "fr", that the bundle at `bundlePath`
    /// has texts for. English is the language of the sources and needs none. Windows are made
    /// afterwards.
    Translations(const QStringList &languages, const QString &bundlePath);
    ~Translations();
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

    /// The language of the texts, such as "zh_CN"; empty for English.
    [[nodiscard]] const QString &language() const { return m_language; }

  private:
    QString m_language;
    QTranslator m_ofQt;
    QTranslator m_own; ///< Asked first.
};

} // namespace folioforge
