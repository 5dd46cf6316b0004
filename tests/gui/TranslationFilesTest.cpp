// SPDX-License-Identifier: Apache-2.0

#include "TranslationFile.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

namespace {

QString nameOf(const QString &language) {
    return u"folioforge_%1.ts"_s.arg(language);
}

QString committed(const QString &language) {
    return inSource(u"translations/"_s + nameOf(language));
}

/// What is put into a text, sorted: "%1" and such as "%L2".
QStringList placeholdersOf(const QString &text) {
    static const QRegularExpression placeholder(u"%L?\\d"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text)) {
        found += match.captured();
    }
    found.sort();
    return found;
}

/// How many forms a language has for numbers, and how many of the first say their number in words.
struct Forms {
    qsizetype all = 0;
    qsizetype inWords = 0;
};

const QMap<QString, Forms> &formsOfLanguages() {
    // Arabic has forms of their own for none, one and two.
    static const QMap<QString, Forms> forms{{u"ar"_s, {6, 3}}, {u"de"_s, {2, 0}},
                                            {u"es"_s, {2, 0}}, {u"fr"_s, {2, 0}},
                                            {u"ja"_s, {1, 0}}, {u"zh_CN"_s, {1, 0}}};
    return forms;
}

/// Whether the number stands in each form that does not say it in words, and only where the source
/// has it.
bool hasItsNumber(const Message &message, const Forms &forms) {
    const bool isPlural = message.source.contains(u"%n"_s);
    for (qsizetype i = 0; i < message.translations.size(); ++i) {
        const bool hasNumber = message.translations[i].contains(u"%n"_s);
        if (hasNumber != isPlural && (hasNumber || i >= forms.inWords)) {
            return false;
        }
    }
    return true;
}

/// The errors and warnings of a room that are made of a text without a translation.
QStringList untranslatedReasonsOf(const QString &room) {
    static const QRegularExpression bare(
        u"([eE]rror\\(|WarningCode::\\w+,)\\s*(u|QStringLiteral\\(\\s*)\"[^\"]*\""_s);
    QStringList found;
    QDirIterator file(inSource(u"src/"_s + room), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString text = QString::fromUtf8(readFile(file.next()));
        for (const QRegularExpressionMatch &match : bare.globalMatch(text)) {
            found += match.captured();
        }
    }
    return found;
}

} // namespace

/// The texts of the sources and their translations, as they are committed.
class TranslationFilesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    /// Has the texts of the sources extracted beside copies of the translations.
    void initTestCase() {
        QStringList arguments{u"-silent"_s, u"-no-obsolete"_s,  u"-locations"_s,
                              u"none"_s,    inSource(u"src"_s), u"-ts"_s};
        for (const QString &language : languages()) {
            QVERIFY(QFile::copy(committed(language), m_extracted.filePath(nameOf(language))));
            arguments += m_extracted.filePath(nameOf(language));
        }
        QCOMPARE(QProcess::execute(QStringLiteral(FOLIOFORGE_LUPDATE), arguments), 0);
    }

    void everyTextOfTheSourcesIsTranslated_data() { addLanguages(); }
    void everyTextOfTheSourcesIsTranslated() {
        QFETCH(const QString, language);
        const QList<Message> messages = readTranslations(m_extracted.filePath(nameOf(language)));
        QVERIFY(messages.size() > 200);
        QStringList missing;
        for (const Message &message : messages) {
            if (!message.isFinished || message.translations.contains(QString())) {
                missing += message.source;
            }
        }
        QCOMPARE(missing, QStringList());
        QCOMPARE(readTranslations(committed(language)).size(), messages.size());
    }

    /// But in `compress`: why a picture stays as it is stands in the report alone, in English. So
    /// is all that `cli` says.
    void errorsAndWarningsOfTheEngineAreMarkedForTranslation_data() {
        QTest::addColumn<QString>("room");
        for (const QString &room :
             QDir(inSource(u"src"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (room != u"compress" && room != u"cli") {
                QTest::newRow(qPrintable(room)) << room;
            }
        }
    }
    void errorsAndWarningsOfTheEngineAreMarkedForTranslation() {
        QFETCH(const QString, room);
        QCOMPARE(untranslatedReasonsOf(room), QStringList());
    }

    void placeholdersAndMnemonicsStay_data() { addLanguages(); }
    void placeholdersAndMnemonicsStay() {
        QFETCH(const QString, language);
        QStringList wrong;
        for (const Message &message : readTranslations(committed(language))) {
            for (const QString &text : message.translations) {
                const bool hasAll = placeholdersOf(text) == placeholdersOf(message.source);
                if (!hasAll || mnemonicOf(text).isEmpty() != mnemonicOf(message.source).isEmpty()) {
                    wrong += text;
                }
            }
            if (!hasItsNumber(message, formsOfLanguages().value(language))) {
                wrong += message.translations;
            }
        }
        QCOMPARE(wrong, QStringList());
    }

    /// A line under a letter would part it from those that it is joined with.
    void mnemonicsStandBesideJoinedLetters() {
        QStringList parted;
        for (const Message &message : readTranslations(committed(u"ar"_s))) {
            const QString &text = message.translations.first();
            if (!mnemonicOf(text).isEmpty() && !text.contains(u"(&"_s)) {
                parted += text;
            }
        }
        QCOMPARE(parted, QStringList());
    }

    void noFrenchLineBeginsWithAMark() {
        static const QRegularExpression parted(u" ([:;?!»]|%(?![\\dLn]))|« |\\d \\d"_s);
        QStringList wrong;
        for (const Message &message : readTranslations(committed(u"fr"_s))) {
            wrong += message.translations.filter(parted);
        }
        QCOMPARE(wrong, QStringList());
    }

    void everyTextHasTheFormsOfItsLanguage_data() { addLanguages(); }
    void everyTextHasTheFormsOfItsLanguage() {
        QFETCH(const QString, language);
        QVERIFY2(formsOfLanguages().contains(language), "Say here how many forms it has");
        const qsizetype forms = formsOfLanguages()[language].all;
        for (const Message &message : readTranslations(committed(language))) {
            const bool isPlural = message.source.contains(u"%n"_s);
            QCOMPARE(message.translations.size(), isPlural ? forms : 1);
        }
    }

  private:
    QTemporaryDir m_extracted;
};

FOLIOFORGE_TEST(TranslationFilesTest)
#include "TranslationFilesTest.moc"
