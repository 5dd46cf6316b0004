// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// The documents name source files and tests that exist.
class DocumentsTest : public QObject {
    Q_OBJECT

    /// What `document` quotes as code and `pattern` describes.
    static QStringList quotedIn(const QString &document, const QString &pattern) {
        const QString text = QString::fromUtf8(readFile(inSource(document)));
        QStringList found;
        auto match = QRegularExpression(u"`("_s + pattern + u")`"_s).globalMatch(text);
        while (match.hasNext()) {
            found += match.next().captured(1);
        }
        return found;
    }

  private Q_SLOTS:
    void everyDocumentNamesWhatExists_data() {
        QTest::addColumn<QString>("document");
        for (const char *document :
             {"SECURITY.md", "CONTRIBUTING.md", "docs/architecture.md", "docs/reliability.md"}) {
            QTest::newRow(document) << QString::fromLatin1(document);
        }
    }

    void everyDocumentNamesWhatExists() {
        QFETCH(const QString, document);
        const QStringList files = quotedIn(document, u"[a-z]+/[A-Za-z/]+\\.(?:cpp|h)"_s);
        const QStringList tests =
            quotedIn(document, u"(?:cli|compress|convert|filelist|files|gui|image|pdf|resources|"
                               "strings|text)\\.[A-Z][A-Za-z0-9]+"_s);
        QVERIFY(!files.isEmpty() || !tests.isEmpty());
        for (const QString &file : files) {
            QVERIFY2(QFileInfo::exists(inSource(u"src/"_s + file)) ||
                         QFileInfo::exists(inSource(file)) || file.endsWith(u"Name.cpp"_s) ||
                         file.endsWith(u"NameTest.cpp"_s),
                     qPrintable(file));
        }
        for (const QString &test : tests) {
            const QString unit = QString(test).replace(u'.', u'/');
            QVERIFY2(QFileInfo::exists(inSource(u"tests/%1Test.cpp"_s.arg(unit))),
                     qPrintable(test));
        }
    }
};

FOLIOFORGE_TEST(DocumentsTest)
#include "DocumentsTest.moc"
