// SPDX-License-Identifier: Apache-2.0

#include "app/Translations.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The languages that `folder` holds texts of, such as "zh_CN".
QStringList languagesIn(const QDir &folder) {
    QStringList languages;
    for (const QString &file : folder.entryList({u"folioforge_*.qm"_s}, QDir::Files)) {
        languages += file.sliced(file.indexOf(u'_') + 1).chopped(3);
    }
    return languages;
}

/// The first of `wanted` that is English, then empty, or one of `languages`: a script that one
/// cannot read is no better than English.
QString choose(const QStringList &wanted, const QStringList &languages) {
    for (const QString &name : wanted) {
        const QLocale users(name);
        if (users.language() == QLocale::English || users.language() == QLocale::C) {
            break;
        }
        for (const QString &language : languages) {
            const QLocale ours(language);
            if (ours.language() == users.language() && ours.script() == users.script()) {
                return language;
            }
        }
    }
    return {};
}

} // namespace

Translations::Translations(const QStringList &languages, const QString &bundlePath) {
    const QDir folder(bundlePath + u"/Contents/Resources/translations"_s);
    m_language = choose(languages, languagesIn(folder));
    if (m_language.isEmpty()) {
        return;
    }
    // What is installed later is asked first.
    if (m_ofQt.load(u"qtbase_"_s + m_language,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_ofQt);
    }
    if (m_own.load(u"folioforge_"_s + m_language, folder.path())) {
        QCoreApplication::installTranslator(&m_own);
    }
    QGuiApplication::setLayoutDirection(QLocale(m_language).textDirection());
}

Translations::~Translations() {
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

} // namespace folioforge
