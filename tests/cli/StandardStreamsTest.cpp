// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Fills `image` with what nothing makes smaller.
void makeNoise(QImage &image) {
    QRandomGenerator random(1);
    for (int y = 0; y < image.height(); ++y) {
        std::generate_n(image.scanLine(y), image.bytesPerLine(),
                        [&random] { return static_cast<uchar>(random.generate()); });
    }
}

} // namespace

/// What the program makes of descriptors that are closed, full or gone.
class StandardStreamsTest : public QObject, protected CommandLineCase {
    Q_OBJECT

    QTemporaryDir m_pictures;
    QStringList m_noise; ///< More than is kept in memory.
    QByteArray m_merged; ///< The PDF of it.

  private Q_SLOTS:
    void initTestCase() {
        QImage image(1200, 1200, QImage::Format_RGB888);
        makeNoise(image);
        for (const QString &name : {u"1.bmp"_s, u"2.bmp"_s, u"3.bmp"_s}) {
            m_noise += m_pictures.filePath(name);
            image.invertPixels();
            QVERIFY(image.save(m_noise.last(), "BMP"));
        }
        setUp();
        m_merged = merged("merged.pdf", m_noise, {}, 0);
        QVERIFY(m_merged.size() > 12'000'000);
    }
    void init() { setUp(); }

    void resultsThatCannotBeWrittenAreAFailure_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("version") << QStringList{u"--version"_s};
        QTest::newRow("help") << QStringList{u"--help"_s};
        QTest::newRow("names of documents") << QStringList{u"a.txt"_s};
        // Longer than any buffer, so that nothing is left to flush.
        QTest::newRow("a long line") << QStringList{u"--json"_s, QString(100'000, u'x')};
    }

    void resultsThatCannotBeWrittenAreAFailure() {
        QFETCH(const QStringList, arguments);
        text("a.txt");
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(kProgram, arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAllStandardError().contains("Standard output cannot be written"));
    }

    void aReaderOfTheOutputThatHasReadEnoughIsNoFault() {
        QProcess process;
        process.setChildProcessModifier([] {
            std::array<int, 2> ends{};
            if (::pipe(ends.data()) == 0) {
                ::close(ends[0]);
                ::dup2(ends[1], STDOUT_FILENO);
            }
        });
        process.start(kProgram, {u"--json"_s, u"--output-folder"_s, path("out"), text("a.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.readAllStandardError(), QByteArray());
        QCOMPARE(process.exitCode(), 0);
    }

    void aClosedDescriptorIsTakenByNoFile_data() {
        QTest::addColumn<QList<int>>("closed");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("none") << QList<int>{} << 0;
        QTest::newRow("input") << QList{STDIN_FILENO} << 0;
        QTest::newRow("output") << QList{STDOUT_FILENO} << 1;
        QTest::newRow("error") << QList{STDERR_FILENO} << 0;
        QTest::newRow("input and error") << QList{STDIN_FILENO, STDERR_FILENO} << 0;
        QTest::newRow("output and error") << QList{STDOUT_FILENO, STDERR_FILENO} << 1;
        QTest::newRow("all") << QList{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO} << 1;
    }

    void aClosedDescriptorIsTakenByNoFile() {
        QFETCH(const QList<int>, closed);
        QFETCH(const int, exitCode);
        // Descriptors are opened while progress is shown.
        const QStringList arguments = QStringList{u"--progress=always"_s} + m_noise;
        QVERIFY(merged("written.pdf", arguments, closed, exitCode) == m_merged);
        QString log;
        QVERIFY2(PdfProbe(path("written.pdf")).isValid(&log), qPrintable(log));
    }

    void aReaderThatGoesAwayStopsNothing() {
        const QString script =
            u"\"$0\" --json --output-folder \"$1\" \"$2\" \"$2\" \"$2\" | true"_s;
        runTool(u"sh"_s, {u"-c"_s, script, kProgram, path("out"), text("a.txt")});
        QCOMPARE(outputs().size(), 3);
    }
};

FOLIOFORGE_TEST(StandardStreamsTest)
#include "StandardStreamsTest.moc"
