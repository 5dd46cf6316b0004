// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QProcess>

#include <unistd.h>
#ifdef __linux__
#include <linux/capability.h>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Where the program takes its passwords from.
class PasswordSourcesTest : public QObject, protected CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void aPasswordIsNotTakenFromAClosedDescriptor() {
        QProcess process;
        process.setChildProcessModifier([] { ::close(STDIN_FILENO); });
        process.start(kProgram, {u"--user-password-file=-"_s, u"--output-folder"_s, path("out"),
                                 text("a.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(outputs().isEmpty());
    }

    void aPasswordComesFromTheFirstLineOfAFile() {
        const QString file = text("password", "sécret\r\nnot this\n");
        QCOMPARE(convert({u"--user-password-file"_s, file, text("a.txt")}).exitCode, 0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), u"sécret"_s).pageCount(), 1);
    }

    void aPasswordComesFromStandardInput() {
        QCOMPARE(convert({u"--user-password-file=-"_s, text("a.txt")}, "secret\n").exitCode, 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), u"secret"_s).pageCount(), 1);
    }

    void bothPasswordsComeFromTwoLinesOfStandardInput() {
        QCOMPARE(convert({u"--owner-password-file=-"_s, u"--user-password-file=-"_s,
                          u"--refuse-print"_s, text("a.txt")},
                         "user\nowner\n")
                     .exitCode,
                 0);
        const PdfProbe probe(path("out/a.pdf"), u"user"_s);
        QVERIFY2(probe.info(u"Encrypted"_s).contains(u"print:no copy:yes"_s),
                 qPrintable(probe.info(u"Encrypted"_s)));
    }

    void passwordsComeFromTheEnvironment() {
        const ToolRun run =
            runTool(u"env"_s, {u"FOLIOFORGE_USER_PASSWORD=user"_s,
                               u"FOLIOFORGE_OWNER_PASSWORD=owner"_s, kProgram, u"--refuse-copy"_s,
                               u"--output-folder"_s, path("out"), text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe probe(path("out/a.pdf"), u"user"_s);
        QVERIFY(probe.info(u"Encrypted"_s).contains(u"copy:no"_s));
    }

    void anEmptyVariableIsNoPassword_data() {
        QTest::addColumn<QString>("variable");
        QTest::newRow("user") << u"FOLIOFORGE_USER_PASSWORD"_s;
        QTest::newRow("owner") << u"FOLIOFORGE_OWNER_PASSWORD"_s;
    }

    void anEmptyVariableIsNoPassword() {
        QFETCH(const QString, variable);
        const ToolRun run = runTool(u"env"_s, {variable + u"="_s, kProgram, u"--output-folder"_s,
                                               path("out"), text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: " + variable.toUtf8() + " is set but empty\n");
        QVERIFY(outputs().isEmpty());
    }

    void aFileTakesThePlaceOfAnEmptyVariable() {
        const ToolRun run = runTool(u"env"_s, {u"FOLIOFORGE_USER_PASSWORD="_s, kProgram,
                                               u"--user-password-file"_s, text("password", "user"),
                                               u"--output-folder"_s, path("out"), text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), u"user"_s).pageCount(), 1);
    }

    void nothingIsRefusedWithoutAnOwnerPassword_data() {
        QTest::addColumn<QString>("option");
        QTest::newRow("printing") << u"--refuse-print"_s;
        QTest::newRow("copying") << u"--refuse-copy"_s;
    }

    void nothingIsRefusedWithoutAnOwnerPassword() {
        QFETCH(const QString, option);
        const ToolRun run = convert({option, u"--user-password-file=-"_s, text("a.txt")}, "user\n");
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err,
                 "folioforge-cli: --refuse-print and --refuse-copy need an owner password\n");
        QVERIFY(outputs().isEmpty());
    }

    void equalPasswordsAreRefused() {
        const QString file = text("password", "same");
        const ToolRun run = convert(
            {u"--user-password-file"_s, file, u"--owner-password-file"_s, file, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err,
                 "folioforge-cli: --owner-password-file: In a PDF this password is the same "
                 "as that of --user-password-file\n");
        QVERIFY(outputs().isEmpty());
    }

    void messagesOfQtAreNotShown() {
        // Qt has one of its own for a file without a name.
        const ToolRun run = convert({u"--user-password-file="_s, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("folioforge-cli: ") && run.err.count('\n') == 1, run.err);
    }

    void aPasswordFileThatCannotBeReadStopsTheRun() {
        const ToolRun run = convert({u"--user-password-file"_s, path("missing"), text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains(path("missing").toUtf8()));
        QVERIFY(outputs().isEmpty());
    }
};

FOLIOFORGE_TEST(PasswordSourcesTest)
#include "PasswordSourcesTest.moc"
