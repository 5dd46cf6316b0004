// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QXmlStreamReader>

namespace folioforge::test {

/// The languages that the window speaks beside English, as the names of their files say them.
inline QStringList languages() {
    const QString before = QStringLiteral("folioforge_");
    const QString behind = QStringLiteral(".ts");
    const QDir folder(inSource(QStringLiteral("translations")));
    QStringList all;
    for (const QString &name : folder.entryList({before + u'*' + behind}, QDir::Files)) {
        all += name.sliced(before.size()).chopped(behind.size());
    }
    if (all.isEmpty()) {
        qFatal("there are no translations in %s", qPrintable(folder.path()));
    }
    return all;
}

/// One row for each language, and one for English where asked.
inline void addLanguages(bool withEnglish = false) {
    QTest::addColumn<QString>("language");
    if (withEnglish) {
        QTest::newRow("en") << QStringLiteral("en");
    }
    for (const QString &language : languages()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

/// The letter behind the sign for one; empty where `text` has none.
inline QString mnemonicOf(QString text) {
    text.remove(QStringLiteral("&&"));
    const qsizetype sign = text.indexOf(u'&');
    return sign < 0 ? QString() : text.mid(sign + 1, 1).toLower();
}

/// A text of a .ts file.
struct Message {
    QString source;
    QStringList translations; ///< One for each plural form, else one.
    bool isFinished = true;
};

/// The texts of the .ts file at `path`.
inline QList<Message> readTranslations(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(path));
    }
    QList<Message> messages;
    QXmlStreamReader xml(&file);
    bool isPlural = false;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement()) {
            continue;
        }
        const QStringView tag = xml.name();
        if (tag == u"message") {
            messages += Message();
            isPlural = xml.attributes().hasAttribute(QStringLiteral("numerus"));
        } else if (tag == u"source") {
            messages.last().source = xml.readElementText();
        } else if (tag == u"translation") {
            messages.last().isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            if (!isPlural) {
                messages.last().translations += xml.readElementText();
            }
        } else if (tag == u"numerusform") {
            messages.last().translations += xml.readElementText();
        }
    }
    return messages;
}

} // namespace folioforge::test
