// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/RunFolders.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTest>

#include <sys/resource.h>

#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;
using test::ToolRun;

namespace {

const QByteArray kPassword = "correct horse battery";

/// How large an image of its memory `process` may leave.
QByteArray coreLimitOf(const QProcess &process) {
    const QString limits = u"/proc/%1/limits"_s.arg(process.processId());
    for (const QByteArray &line : test::readFile(limits).split('\n')) {
        if (line.startsWith("Max core file size")) {
            return line.simplified().split(' ').at(4);
        }
    }
    return {};
}

} // namespace

/// Passwords leave no trace, and those that no document can have are refused.
class PasswordsTest : public QObject {
    Q_OBJECT

    std::optional<test::RunFolders> m_folders;

    QString path(const char *name) const { return m_folders->path(name); }
    QStringList outputArguments() const { return {u"--output-folder"_s, path("out")}; }

  private Q_SLOTS:
    void init() { m_folders.emplace(); }
    void cleanup() { m_folders.reset(); }

    void neitherReportNorFilesHoldThePassword() {
        QVERIFY(test::photo(300, 200).save(path("photo.jpg"), "JPG", 95));
        const ToolRun run = test::runTool(
            test::kProgram,
            outputArguments() + QStringList{u"--user-password-file=-"_s, u"--json"_s,
                                            u"--progress=always"_s, u"--compress=72l"_s,
                                            path("photo.jpg"), path("missing.txt")},
            kPassword + '\n');
        QCOMPARE(run.exitCode, 1);
        QVERIFY(PdfProbe(path("out/photo.pdf"), QString::fromLatin1(kPassword)).isValid());
        QVERIFY(!run.out.contains(kPassword) && !run.err.contains(kPassword));
        QDirIterator files(m_folders->path(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QVERIFY(!test::readFile(files.next()).contains(kPassword));
        }
        QVERIFY(QDir(path("temporary"))
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void thereIsNoOptionForAPassword_data() {
        QTest::addColumn<QString>("option");
        QTest::newRow("user") << u"--user-password"_s;
        QTest::newRow("owner") << u"--owner-password"_s;
        QTest::newRow("short") << u"--password"_s;
    }
    void thereIsNoOptionForAPassword() {
        QFETCH(const QString, option);
        const ToolRun run = test::runTool(
            test::kProgram, {option + u'=' + QString::fromLatin1(kPassword), path("missing.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(!run.err.contains(kPassword));
    }

    void aPasswordThatNoDocumentCanHaveIsRefused_data() {
        QTest::addColumn<QByteArray>("password");
        QTest::addColumn<QByteArray>("notice");
        const QByteArray prohibited = "The password contains a character that passwords cannot "
                                      "have";
        QTest::newRow("128 bytes")
            << QByteArray(128, 'x') << QByteArray("The password is longer than 127 bytes");
        QTest::newRow("64 letters of two bytes")
            << QByteArray("\xc3\xa9").repeated(64)
            << QByteArray("The password is longer than 127 bytes");
        QTest::newRow("a megabyte")
            << QByteArray(1 << 20, 'x') << QByteArray("The password is longer than 127 bytes");
        QTest::newRow("control character") << QByteArray("a\x07z") << prohibited;
        QTest::newRow("private use") << QByteArray("a\xee\x80\x80") << prohibited;
        QTest::newRow("null") << QByteArray("a\0b", 3) << prohibited;
        QTest::newRow("nothing visible")
            << QByteArray("\xc2\xad") << QByteArray("The password contains no visible character");
        QTest::newRow("digit after Arabic")
            << QByteArray("\xd8\xa7\x31")
            << QByteArray("The password mixes characters written from right to left with others "
                          "in a way that passwords cannot have");
        QTest::newRow("no UTF-8") << QByteArray("caf\xe9")
                                  << QByteArray("The password is not valid UTF-8");
    }
    void aPasswordThatNoDocumentCanHaveIsRefused() {
        QFETCH(const QByteArray, password);
        QFETCH(const QByteArray, notice);
        const QString file = test::writeFile(path("password"), password + "\n");
        const QString source = test::writeFile(path("a.txt"), "words");
        for (const char *option : {"--user-password-file", "--owner-password-file"}) {
            const ToolRun run = test::runTool(
                test::kProgram,
                outputArguments() + QStringList{QString::fromLatin1(option), file, source});
            QCOMPARE(run.exitCode, 2);
            QCOMPARE(run.err, "folioforge-cli: " + QByteArray(option) + ": " + notice + '\n');
            QVERIFY(QDir(path("out")).isEmpty());
        }
    }

    void aCrashLeavesNoImageOfTheMemory() {
        QProcess process;
        // Most sessions leave no image anyway, which would hide that the program forbids it.
        process.setChildProcessModifier([] {
            rlimit limit{};
            ::getrlimit(RLIMIT_CORE, &limit);
            limit.rlim_cur = limit.rlim_max;
            ::setrlimit(RLIMIT_CORE, &limit);
        });
        process.start(test::kProgram, outputArguments() + QStringList{u"--user-password-file=-"_s,
                                                                      u"--owner-password-file=-"_s,
                                                                      path("missing.txt")});
        QVERIFY(process.waitForStarted());
        process.write(kPassword + '\n');
        QVERIFY(process.waitForBytesWritten());
        QTRY_COMPARE(coreLimitOf(process), QByteArray("0")); // It waits for the second password.
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
    }
};

FOLIOFORGE_TEST(PasswordsTest)
#include "PasswordsTest.moc"
