// SPDX-License-Identifier: Apache-2.0

#include "convert/OutputName.h"

#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

class OutputNameTest : public QObject {
    Q_OBJECT

  private:
    static QString merged(const char *name) {
        ConversionOptions options;
        options.outputFolder = u"/out"_s;
        options.outputName = QString::fromUtf8(name);
        return mergedFilePath(options);
    }

  private Q_SLOTS:
    void aMergedNameGetsItsExtension() {
        QCOMPARE(merged("report"), u"/out/report.pdf"_s);
        QCOMPARE(merged("report.txt"), u"/out/report.txt.pdf"_s);
        QCOMPARE(merged("report."), u"/out/report..pdf"_s);
        QCOMPARE(merged(".pdf"), u"/out/.pdf.pdf"_s);
    }

    void aMergedNameKeepsTheExtensionItHas() {
        QCOMPARE(merged("report.pdf"), u"/out/report.pdf"_s);
        QCOMPARE(merged("report.PDF"), u"/out/report.PDF"_s);
    }

    void aSingleNameIsTheSourcesWithAnotherExtension() {
        const QTemporaryDir folder;
        const auto name = [&folder](const char *source) {
            return QFileInfo(singleFilePath(folder.path(), QString::fromUtf8(source))).fileName();
        };
        QCOMPARE(name("a.txt"), u"a.pdf"_s);
        QCOMPARE(name("a.b.JPG"), u"a.b.pdf"_s);
        QCOMPARE(name("a.PDF"), u"a.pdf"_s);
        QCOMPARE(name("plain"), u"plain.pdf"_s);
    }

    void takenNamesAreNumbered() {
        const QTemporaryDir folder;
        const QString source = u"a.txt"_s;
        for (const char *expected : {"a.pdf", "a(1).pdf", "a(2).pdf", "a(3).pdf"}) {
            const QString path = singleFilePath(folder.path(), source);
            QCOMPARE(path, folder.filePath(QString::fromLatin1(expected)));
            test::writeFile(path, "x");
        }
    }

    void theFirstFreeNumberWins() {
        const QTemporaryDir folder;
        test::writeFile(folder.filePath(u"a.pdf"_s), "x");
        test::writeFile(folder.filePath(u"a(2).pdf"_s), "x");
        QCOMPARE(singleFilePath(folder.path(), u"a.txt"_s), folder.filePath(u"a(1).pdf"_s));
    }

    void aLinkThatLeadsNowhereTakesItsName() {
        const QTemporaryDir folder;
        QVERIFY(QFile::link(u"missing"_s, folder.filePath(u"a.pdf"_s)));
        QCOMPARE(singleFilePath(folder.path(), u"a.txt"_s), folder.filePath(u"a(1).pdf"_s));
    }

    void theLongestNamesLoseCharactersToTheNumber() {
        const QTemporaryDir folder;
        const QString base(251, u'x');
        const QString first = singleFilePath(folder.path(), base + u".txt"_s);
        QCOMPARE(first, folder.filePath(base + u".pdf"_s));
        test::writeFile(first, "x");
        const QString second = singleFilePath(folder.path(), base + u".txt"_s);
        QCOMPARE(second, folder.filePath(QString(248, u'x') + u"(1).pdf"_s));
        test::writeFile(second, "x");
    }

    void aLongNameIsCutBetweenCharacters() {
        const QTemporaryDir folder;
        // 62 characters of four bytes and ".txt" are 252 bytes; "(1).pdf" asks for three less.
        const QString face = u"\U0001F600"_s;
        const QString source = face.repeated(62) + u"x.txt"_s;
        const QString base = face.repeated(62);
        test::writeFile(folder.filePath(base + u"x.pdf"_s), "x");
        QCOMPARE(singleFilePath(folder.path(), source), folder.filePath(base + u"(1).pdf"_s));
        test::writeFile(folder.filePath(base + u"(1).pdf"_s), "x");
        for (int number = 2; number <= 9; ++number) {
            test::writeFile(folder.filePath(base + u"(%1).pdf"_s.arg(number)), "x");
        }
        QCOMPARE(singleFilePath(folder.path(), source),
                 folder.filePath(face.repeated(61) + u"(10).pdf"_s));
    }
};

FOLIOFORGE_TEST(OutputNameTest)
#include "OutputNameTest.moc"
