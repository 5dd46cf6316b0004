// SPDX-License-Identifier: Apache-2.0

#include "app/Launch.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// What the window's program says on a terminal, where there need not be a display.
class LaunchTest : public QObject {
    Q_OBJECT

    static ToolRun launch(const QStringList &words) {
        const QString program = bundlePath() + u"/Contents/MacOS/folioforge"_s;
        return runTool(u"env"_s,
                       QStringList{u"-u"_s, u"DISPLAY"_s, u"QT_QPA_PLATFORM=xcb"_s, program} +
                           words);
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
        const QStringList words = {u"a.txt"_s, u"--"_s, u"--"_s, u"--help"_s, u"/b.txt"_s};
        QVERIFY(!folioforge::answerTo(words).has_value());
        const QString here = QDir::currentPath() + u'/';
        QCOMPARE(folioforge::filesAmong(words),
                 QStringList({here + u"a.txt"_s, here + u"--"_s, here + u"--help"_s, u"/b.txt"_s}));
    }
};

FOLIOFORGE_TEST(LaunchTest)
#include "LaunchTest.moc"
