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

/// A picture that nothing makes smaller; returns its path.
QString writeNoise(const QString &path) {
    constexpr int kSide = 1200;
    QImage image(kSide, kSide, QImage::Format_RGB888);
    for (int y = 0; y < kSide; ++y) {
        QRandomGenerator random(static_cast<quint32>(y));
        std::generate_n(image.scanLine(y), kSide * 3,
                        [&random] { return static_cast<uchar>(random.generate()); });
    }
    return image.save(path, "BMP") ? path : QString();
}

} // namespace

/// What the program makes of descriptors that are closed, full or gone.
class StandardStreamsTest : public QObject, protected CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
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
        // More than is kept in memory, so that descriptors are opened while progress is shown.
        QStringList noise;
        for (const char *name : {"1.bmp", "2.bmp", "3.bmp"}) {
            noise += writeNoise(path(name));
        }
        const QStringList arguments = QStringList{u"--progress=always"_s} + noise;
        const QByteArray expected = merged("expected.pdf", arguments, {}, 0);
        QVERIFY(expected.size() > 12'000'000);
        QVERIFY(merged("written.pdf", arguments, closed, exitCode) == expected);
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
