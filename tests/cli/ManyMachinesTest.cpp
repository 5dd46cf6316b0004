// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The script of docs/many-machines.md whose second line begins with "# NAME ".
QString scriptOf(const QString &name) {
    const QString text = QString::fromUtf8(readFile(inSource(u"docs/many-machines.md"_s)));
    const QRegularExpression block(u"^```sh\n(#!/bin/sh\n# %1 .*?)^```"_s.arg(name),
                                   QRegularExpression::MultilineOption |
                                       QRegularExpression::DotMatchesEverythingOption);
    return block.match(text).captured(1);
}

} // namespace

/// The scripts for many machines, tried again after machines died; bench/many-machines lets them.
class ManyMachinesTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// Runs the script over the shard; what it says on standard error.
    QByteArray run(const QByteArray &script) const {
        const ToolRun run = shell("sh " + script + " shards/0000");
        return run.exitCode == 0 ? run.err : "exit status " + QByteArray::number(run.exitCode);
    }
    QStringList in(const char *folder, const QString &like = u"*"_s) const {
        return QDir(path(folder)).entryList({like}, QDir::Files | QDir::Hidden, QDir::Name);
    }
    qint64 written(const char *name) const {
        return QFileInfo(path(name)).lastModified().toMSecsSinceEpoch();
    }

  private Q_SLOTS:
    void init() {
        setUp();
        QVERIFY(QDir().mkpath(path("shards")));
        text("shards/0000", "a.txt\nb.txt\nc.txt\n");
        for (const char *name : {"a.txt", "b.txt", "c.txt"}) {
            text(name, name);
        }
        for (const char *script : {"convert-shard", "merge-shard"}) {
            const QString lines = scriptOf(QLatin1StringView(script));
            QVERIFY(!lines.isEmpty());
            text(script, lines.toUtf8());
        }
    }

    void aTriedShardIsMadeWhole() {
        QCOMPARE(run("convert-shard"), "");
        QCOMPARE(in("pdfs/0000"), QStringList({u"a.pdf"_s, u"b.pdf"_s, u"c.pdf"_s}));
        QCOMPARE(PdfProbe(path("pdfs/0000/b.pdf")).text().simplified(), u"b.txt"_s);

        // Killed within the line of the second, the third not begun.
        const QStringList reports = in("reports/0000", u"*.json"_s);
        QCOMPARE(reports.size(), 1);
        const QString report = m_folder->filePath(u"reports/0000/"_s + reports.first());
        const QList<QByteArray> lines = readFile(report).split('\n');
        writeFile(report, lines[0] + '\n' + lines[1] + '\n' + lines[2].first(lines[2].size() / 2));
        QVERIFY(QFile::remove(path("pdfs/0000/c.pdf")));
        const qint64 first = written("pdfs/0000/a.pdf");
        const qint64 second = written("pdfs/0000/b.pdf");
        QCOMPARE(run("convert-shard"), "");
        QCOMPARE(in("pdfs/0000"), QStringList({u"a.pdf"_s, u"b(1).pdf"_s, u"b.pdf"_s, u"c.pdf"_s}));
        QCOMPARE(written("pdfs/0000/a.pdf"), first);
        QCOMPARE(written("pdfs/0000/b.pdf"), second);

        QCOMPARE(run("convert-shard"), ""); // Nothing is left.
        QCOMPARE(in("pdfs/0000").size(), 4);
        QCOMPARE(in("reports/0000", u"*.json"_s).size(), 2);
    }

    void aMergedShardIsMergedOnce() {
        QCOMPARE(run("merge-shard"), "");
        const qint64 first = written("parts/0000.pdf");
        QCOMPARE(run("merge-shard"), "");
        QCOMPARE(written("parts/0000.pdf"), first);
        // Killed before it was recorded.
        QVERIFY(QFile::remove(path("parts/0000.json")));
        text("parts/0000.pdf", "another");
        QCOMPARE(run("merge-shard"), "");
        QCOMPARE(linesOf(PdfProbe(path("parts/0000.pdf"))),
                 QStringList({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}));
    }
};

FOLIOFORGE_TEST(ManyMachinesTest)
#include "ManyMachinesTest.moc"
