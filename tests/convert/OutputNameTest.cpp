#include "convert/OutputName.h"

#include "support/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace folioforge;

class OutputNameTest : public QObject {
    Q_OBJECT

  private:
    static QString merged(const char *name) {
        ConversionOptions options;
        options.outputFolder = QStringLiteral("/out");
        options.outputName = QString::fromUtf8(name);
        return mergedFilePath(options);
    }

  private Q_SLOTS:
    void aMergedNameGetsItsExtension() {
        QCOMPARE(merged("report"), QStringLiteral("/out/report.pdf"));
        QCOMPARE(merged("report.txt"), QStringLiteral("/out/report.txt.pdf"));
        QCOMPARE(merged("report."), QStringLiteral("/out/report..pdf"));
        QCOMPARE(merged(".pdf"), QStringLiteral("/out/.pdf.pdf"));
    }

    void aMergedNameKeepsTheExtensionItHas() {
        QCOMPARE(merged("report.pdf"), QStringLiteral("/out/report.pdf"));
        QCOMPARE(merged("report.PDF"), QStringLiteral("/out/report.PDF"));
    }

    void aSingleNameIsTheSourcesWithAnotherExtension() {
        const QTemporaryDir folder;
        const auto name = [&folder](const char *source) {
            return QFileInfo(singleFilePath(folder.path(), QString::fromUtf8(source))).fileName();
        };
        QCOMPARE(name("a.txt"), QStringLiteral("a.pdf"));
        QCOMPARE(name("a.b.JPG"), QStringLiteral("a.b.pdf"));
        QCOMPARE(name("a.PDF"), QStringLiteral("a.pdf"));
        QCOMPARE(name("plain"), QStringLiteral("plain.pdf"));
    }

    void takenNamesAreNumbered() {
        const QTemporaryDir folder;
        const QString source = QStringLiteral("a.txt");
        for (const char *expected : {"a.pdf", "a(1).pdf", "a(2).pdf", "a(3).pdf"}) {
            const QString path = singleFilePath(folder.path(), source);
            QCOMPARE(path, folder.filePath(QString::fromLatin1(expected)));
            test::writeFile(path, "x");
        }
    }

    void theFirstFreeNumberWins() {
        const QTemporaryDir folder;
        test::writeFile(folder.filePath(QStringLiteral("a.pdf")), "x");
        test::writeFile(folder.filePath(QStringLiteral("a(2).pdf")), "x");
        QCOMPARE(singleFilePath(folder.path(), QStringLiteral("a.txt")),
                 folder.filePath(QStringLiteral("a(1).pdf")));
    }

    void aLinkThatLeadsNowhereTakesItsName() {
        const QTemporaryDir folder;
        QVERIFY(QFile::link(QStringLiteral("missing"), folder.filePath(QStringLiteral("a.pdf"))));
        QCOMPARE(singleFilePath(folder.path(), QStringLiteral("a.txt")),
                 folder.filePath(QStringLiteral("a(1).pdf")));
    }

    void theLongestNamesLoseCharactersToTheNumber() {
        const QTemporaryDir folder;
        const QString base(251, u'x');
        const QString first = singleFilePath(folder.path(), base + QStringLiteral(".txt"));
        QCOMPARE(first, folder.filePath(base + QStringLiteral(".pdf")));
        test::writeFile(first, "x");
        const QString second = singleFilePath(folder.path(), base + QStringLiteral(".txt"));
        QCOMPARE(second, folder.filePath(QString(248, u'x') + QStringLiteral("(1).pdf")));
        test::writeFile(second, "x");
    }

    void aLongNameIsCutBetweenCharacters() {
        const QTemporaryDir folder;
        // 62 characters of four bytes and ".txt" are 252 bytes; "(1).pdf" asks for three less.
        const QString face = QStringLiteral("\U0001F600");
        const QString source = face.repeated(62) + QStringLiteral("x.txt");
        const QString base = face.repeated(62);
        test::writeFile(folder.filePath(base + QStringLiteral("x.pdf")), "x");
        QCOMPARE(singleFilePath(folder.path(), source),
                 folder.filePath(base + QStringLiteral("(1).pdf")));
        test::writeFile(folder.filePath(base + QStringLiteral("(1).pdf")), "x");
        for (int number = 2; number <= 9; ++number) {
            test::writeFile(folder.filePath(base + QStringLiteral("(%1).pdf").arg(number)), "x");
        }
        QCOMPARE(singleFilePath(folder.path(), source),
                 folder.filePath(face.repeated(61) + QStringLiteral("(10).pdf")));
    }
};

QTEST_GUILESS_MAIN(OutputNameTest)
#include "OutputNameTest.moc"
