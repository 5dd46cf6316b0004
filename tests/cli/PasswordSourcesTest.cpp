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

    /// A document with a text, encrypted by qpdf; its owner password is "ä owner".
    QString encrypted(const QString &user, const QString &bits, const QStringList &rights) const {
        const QString plain = path("plain.pdf");
        if (!QFile::exists(plain)) {
            merge("plain.pdf", {text("a.txt")});
        }
        QString locked = path("locked.pdf");
        runTool(u"qpdf"_s,
                QStringList{u"--allow-weak-crypto"_s, u"--encrypt"_s, user, u"ä owner"_s, bits} +
                    rights + QStringList{u"--"_s, plain, locked});
        return locked;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void passwordsOfAPipeMayComeOneByOne() {
        encrypted(u"user"_s, u"256"_s, {});
        const ToolRun run = shell(
            "{ echo wrong; sleep 0.2; echo 'ä owner'; sleep 0.2; echo wrong; } | folioforge-cli "
            "--merge open.pdf --input-password-file - locked.pdf");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(PdfProbe(path("open.pdf")).pageCount(), 1);
    }

    void aFileOfTooManyPasswordsIsRefused() {
        const QString list = text("list", QByteArray("word\n").repeated(1 << 18));
        const ToolRun run = merge("open.pdf", {u"--input-password-file"_s, list, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains("It has more than 1048576 bytes"), run.err.constData());
    }

    void encryptedPdfsOpenWithALineOfTheFile_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("reason");
        const QByteArray none = "none of the passwords opens it";
        const QByteArray forbidden = "its permissions do not let its pages be taken";
        for (const char *key : {"128", "256"}) {
            const auto row = [&](const char *what, const char *lines, const QByteArray &reason) {
                QTest::addRow("%s, %s bits", what, key)
                    << QString::fromLatin1(key) << QByteArray(lines) << reason;
            };
            row("the owner's, among others", "wrong\r\n\xC3\xA4 owner\r\n", {});
            row("the user's", "user\n", forbidden);
            row("none of them", "wrong\n", none);
            row("an empty file", "", none);
        }
    }

    void encryptedPdfsOpenWithALineOfTheFile() {
        QFETCH(const QString, key);
        QFETCH(const QByteArray, lines);
        QFETCH(const QByteArray, reason);
        const QString file = encrypted(u"user"_s, key, {u"--assemble=n"_s});
        const ToolRun run =
            merge("all.pdf", {file, u"--input-password-file"_s, text("lines", lines)});
        QVERIFY(run.err.contains(reason.isEmpty() ? "the PDF made of it is not" : reason));
        QCOMPARE(run.exitCode, reason.isEmpty() ? 0 : 1);
        if (reason.isEmpty()) {
            const PdfProbe probe(path("all.pdf"));
            QVERIFY(probe.isValid());
            QVERIFY(probe.text().contains(u"words"_s));
            QCOMPARE(probe.info(u"Encrypted"_s), u"no"_s);
        }
    }

    void theOptionThatOpensAnEncryptedPdfIsNamed() {
        const ToolRun run = merge("all.pdf", {encrypted({}, u"256"_s, {u"--print=none"_s})});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("The document is encrypted; --input-password-file opens it"),
                 run.err);
    }

    void pdfsThatOnlyRestrictNeedNoPasswordWhereTheyMayBeAssembled() {
        const QString lines = text("lines", "wrong\n");
        const QString free = encrypted({}, u"256"_s, {u"--print=none"_s});
        const QStringList protection{u"--owner-password-file"_s, text("owner", "new owner")};
        const ToolRun run =
            convert(protection + QStringList{free, u"--input-password-file"_s, lines});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("has the protection that was asked for instead"));
        QVERIFY(PdfProbe(path("out/locked.pdf")).info(u"Encrypted"_s).contains(u"print:yes"_s));
        const QString bound = encrypted({}, u"256"_s, {u"--assemble=n"_s});
        QCOMPARE(convert({bound, u"--input-password-file"_s, lines}).exitCode, 1);
        QCOMPARE(convert({free}).exitCode, 1); // Without the option as ever.
    }

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
