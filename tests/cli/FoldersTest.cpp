// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#ifdef __linux__
#include <linux/capability.h>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The program run next may read no more than its owner, whoever that is.
void giveUpRightsOfRoot() {
#ifdef __linux__
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
#endif
}

} // namespace

/// Folders as inputs.
class FoldersTest : public QObject, protected CommandLineCase {
    Q_OBJECT

    /// A run by somebody who may do no more than `permissions` say with the folder "in".
    ToolRun convertedWhile(QFile::Permissions permissions, const QStringList &arguments) const {
        QFile::setPermissions(path("in"), permissions);
        QProcess process;
        process.setChildProcessModifier(giveUpRightsOfRoot);
        process.start(kProgram, QStringList{u"--output-folder"_s, path("out")} + arguments);
        process.waitForFinished();
        QFile::setPermissions(path("in"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aFolderStandsForItsTextsAndImages() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in/sub"_s));
        text("in/b.TXT");
        test::writePdf(path("in/a.PDF"), 1);
        test::writePng(path("in/c.png"), 3, 3);
        text("in/sub/deep.txt");
        const ToolRun run = convert({path("in/")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs().join(u' '), u"b.pdf c.pdf"_s);
    }

    void whatIsLeftOutOfAFolderIsCounted() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in/sub"_s));
        QVERIFY(QDir(m_folder->path()).mkpath(u"in/.hidden"_s));
        for (const char *name : {"in/a.txt", "in/b.pdf", "in/c.PDF", "in/d.doc", "in/.DS_Store"}) {
            text(name);
        }
        const ToolRun run = convert({u"--json"_s, path("in/")});
        QCOMPARE(run.exitCode, 0);
        const QString left = u"Left out: 2 PDFs, 1 folder, 1 file of another type"_s;
        QCOMPARE(run.err,
                 "folioforge-cli: " + path("in/").toUtf8() + ": warning: " + left.toUtf8() + '\n');
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects[0], "input"), path("in/"));
        QCOMPARE(member(objects[0], "state"), u"listed"_s);
        const QJsonObject warning = objects[0][u"warnings"_s].toArray().at(0).toObject();
        QCOMPARE(member(warning, "code"), u"folder-entries-left"_s);
        QCOMPARE(member(warning, "text"), left);
        QCOMPARE(outputs(), QStringList{u"a.pdf"_s});
    }

    void aFolderOfWhichNothingIsLeftOutIsNoInput() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        text("in/a.txt");
        const ToolRun run = convert({u"--json"_s, u"--strict"_s, path("in")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(objectsOf(run.out).size(), 1);
    }

    void whatIsLeftOutOfAFolderFailsAStrictRun() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        text("in/a.txt");
        text("in/b.pdf");
        QCOMPARE(convert({u"--strict"_s, path("in")}).exitCode, 1);
        QCOMPARE(outputs(), QStringList{u"a.pdf"_s});
    }

    void theFilesOfAFolderComeInTheOrderOfTheirNames() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        for (const char *name : {"in/a.txt", "in/10.txt", "in/é.txt", "in/9.txt", "in/B.txt"}) {
            text(name);
        }
        const ToolRun run = convert({u"--json"_s, path("in")});
        QStringList inputs;
        for (const QJsonObject &object : objectsOf(run.out)) {
            inputs += member(object, "input");
        }
        QCOMPARE(inputs, (QStringList{path("in/10.txt"), path("in/9.txt"), path("in/B.txt"),
                                      path("in/a.txt"), path("in/é.txt")}));
    }

    void aFolderWhoseEntriesCannotBeLookedAtEndsNoRun() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in/sub"_s));
        const ToolRun run =
            convertedWhile(QFile::ReadOwner, {u"--recursive"_s, path("in"), text("good.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains(path("in/sub").toUtf8() + ": "), run.err);
        QCOMPARE(outputs(), QStringList{u"good.pdf"_s});
    }

    void aFolderThatCannotBeListedIsNamedAndTheRestConverted() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        text("in/a.txt");
        const ToolRun run = convertedWhile({}, {u"--json"_s, path("in/"), text("good.txt")});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects[0], "input"), path("in/"));
        QCOMPARE(member(objects[0], "state"), u"rejected"_s);
        QVERIFY(member(objects[0], "message").endsWith(u"Permission denied"_s));
        QVERIFY(run.err.contains(path("in/").toUtf8() + ": "));
        QCOMPARE(outputs(), QStringList{u"good.pdf"_s});
    }
};

FOLIOFORGE_TEST(FoldersTest)
#include "FoldersTest.moc"
