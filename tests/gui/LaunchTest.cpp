// SPDX-License-Identifier: Apache-2.0

#include "app/Launch.h"
#include "support/HostileNames.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

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
        const QByteArray before = QFile::encodeName(QDir::currentPath());
        const QTemporaryDir home;
        const FolderOfHostileNames folder(home.filePath(u"in"_s));
        // A folder may have a name that is no text, too.
        const QByteArray here = folder.path("caf\xe9");
        QVERIFY(::mkdir(here.constData(), S_IRWXU) == 0 && ::chdir(here.constData()) == 0);
        const QByteArrayList files = folioforge::filesAmong(words);
        QVERIFY(::chdir(before.constData()) == 0);
        QCOMPARE(files,
                 QByteArrayList({here + "/a.txt", here + "/--", here + "/--help", "/b.txt"}));
    }

    void aNameThatIsNoTextKeepsItsBytes() {
        QCOMPARE(folioforge::filesAmong({"/caf\xe9.txt"}), QByteArrayList{"/caf\xe9.txt"});
    }
};

FOLIOFORGE_TEST(LaunchTest)
#include "LaunchTest.moc"
