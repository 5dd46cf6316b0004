// SPDX-License-Identifier: Apache-2.0

#include "filelist/EntryReader.h"

#include "error/Error.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace folioforge;

class EntryReaderTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    static ReadEntry read(const QString &file, SourceReading reading = SourceReading::WhenListed) {
        return readEntries({file}, reading).front();
    }

  private Q_SLOTS:
    void entriesComeInTheOrderOfTheirPaths() {
        QStringList paths;
        for (int i = 0; i < 50; ++i) {
            paths += test::writeFile(m_folder.filePath(u"%1.txt"_s.arg(i)), "x");
        }
        QStringList read;
        for (const ReadEntry &entry : readEntries(paths, SourceReading::WhenListed)) {
            read += entry.entry.filePathName();
        }
        QCOMPARE(read, paths);
    }

    void anEntryKnowsThePagesThatItsFileHolds() {
        QCOMPARE(read(test::writePdf(path("three.pdf"), 3)).entry.pageCount(), 3);
        QCOMPARE(read(test::writePng(path("a.png"), 2, 2)).entry.pageCount(), 1);
        QCOMPARE(read(test::writeFile(path("broken.png"), "no image")).entry.pageCount(), 0);
        QCOMPARE(read(test::writeFile(path("a.txt"), "words")).entry.pageCount(), 0);
    }

    void aRefusedPdfIsToldFromOneThatIsMissing_data() {
        QTest::addColumn<SourceReading>("reading");
        QTest::newRow("listed") << SourceReading::WhenListed;
        QTest::newRow("written") << SourceReading::WhenWritten;
    }
    void aRefusedPdfIsToldFromOneThatIsMissing() {
        QFETCH(const SourceReading, reading);
        const ReadEntry refused = read(test::writeFile(path("no.pdf"), "no document"), reading);
        QVERIFY(refused.refusedPdf);
        QCOMPARE(refused.problem, u"This is not a PDF file"_s);
        const ReadEntry missing = read(path("missing.pdf"), reading);
        QVERIFY(!missing.refusedPdf);
        QVERIFY(!missing.problem.isEmpty());
        const ReadEntry good = read(test::writePdf(path("good.pdf"), 1), reading);
        QVERIFY(!good.refusedPdf);
        QCOMPARE(good.problem, QString());
    }

    void aBrokenPictureSaysWhy() {
        const ReadEntry broken = read(test::writeFile(path("broken.png"), "no image"));
        QVERIFY(!broken.problem.isEmpty());
        QCOMPARE(broken.problem, broken.entry.readError());
    }

    void aTextLargerThanMemoryCountsIsRefusedAtOnce() {
        const QString file = test::writeFile(path("large.txt"), "words");
        constexpr qint64 kTooLarge = qint64{1} << 31;
        QVERIFY(QFile::resize(file, kTooLarge)); // Takes no room on the disk.
        for (const SourceReading reading :
             {SourceReading::WhenListed, SourceReading::WhenWritten}) {
            QCOMPARE(read(file, reading).problem, u"The text is larger than 2 GB"_s);
        }
    }

    void aFileOfAnotherTypeCannotBeConverted() {
        QCOMPARE(read(test::writeFile(path("a.docx"), "x")).problem,
                 u"It is not a recognised type"_s);
    }

    void aPipeIsNeverOpened() {
        QCOMPARE(::mkfifo(qPrintable(path("pipe.txt")), 0600), 0);
        for (const SourceReading reading :
             {SourceReading::WhenListed, SourceReading::WhenWritten}) {
            QCOMPARE(read(path("pipe.txt"), reading).problem, u"It is not a regular file"_s);
        }
    }

    void aTextReadWhenWrittenIsHeldByNobody() {
        const QString file = test::writeFile(path("late.txt"), "before");
        const ReadEntry listed = read(file, SourceReading::WhenWritten);
        QCOMPARE(listed.problem, QString());
        QVERIFY(listed.entry.getFileString().isNull());
        test::writeFile(file, "after");
        QCOMPARE(listed.entry.sourceText().rest(), u"after"_s);
        QVERIFY(QFile::remove(file));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(listed.entry.sourceText()));
    }

    void aTextReadWhenListedStaysAsItWas() {
        const QString file = test::writeFile(path("early.txt"), "before");
        const ReadEntry listed = read(file, SourceReading::WhenListed);
        QVERIFY(QFile::remove(file));
        QCOMPARE(listed.entry.sourceText().rest(), u"before"_s);
    }
};

FOLIOFORGE_TEST(EntryReaderTest)
#include "EntryReaderTest.moc"
