// SPDX-License-Identifier: Apache-2.0

#include "app/Launch.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// What the window's program says on a terminal, where there need not be a display.
class LaunchTest : public QObject {
    Q_OBJECT

    static ToolRun launch(const QStringList &words) {
        const QStringList noDisplay = {u"-u"_s, u"DISPLAY"_s, u"QT_QPA_PLATFORM=xcb"_s};
        return runTool(u"env"_s, noDisplay + QStringList{windowProgram()} + words);
    }

  private Q_SLOTS:
    void theHelpNamesFilesAndOptions() {
        const ToolRun run = launch({u"--help"_s});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.startsWith("Usage: folioforge [FILE...]\n"));
        QVERIFY(run.out.contains("--version"));
        QCOMPARE(run.err, QByteArray());
    }

    void theVersionIsThatOfTheProject() {
        const ToolRun run = launch({u"--version"_s});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, QByteArray("folioforge " FOLIOFORGE_VERSION "\n"));
    }

    void anOptionThatThereIsNotIsNamed() {
        const ToolRun run = launch({u"a.txt"_s, u"--merge"_s});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY(run.err.startsWith("folioforge: there is no option \"--merge\"\n"));
    }

    void wordsAfterTwoDashesAreFiles() {
        const QByteArrayList words = {"a.txt", "--", "--", "--help", "/b.txt"};
        QVERIFY(!folioforge::answerTo(words).has_value());
        const QByteArray here = QFile::encodeName(QDir::currentPath()) + '/';
        QCOMPARE(folioforge::filesAmong(words),
                 QByteArrayList({here + "a.txt", here + "--", here + "--help", "/b.txt"}));
    }

    void aNameThatIsNoTextKeepsItsBytes() {
        QCOMPARE(folioforge::filesAmong({"/caf\xe9.txt"}), QByteArrayList{"/caf\xe9.txt"});
    }
};

FOLIOFORGE_TEST(LaunchTest)
#include "LaunchTest.moc"
