// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The one block of commands of docs/many-machines.md that holds `words`.
QString commandsWith(const QString &words) {
    const QString text = QString::fromUtf8(readFile(inSource(u"docs/many-machines.md"_s)));
    QStringList found;
    for (const QString &block : text.split(u"\n```sh\n"_s).sliced(1)) {
        found += block.left(block.indexOf(u"```"));
    }
    found = found.filter(words);
    return found.size() == 1 ? found.first() : QString();
}

} // namespace

/// The scripts for many machines, run on one and tried again; bench/many-machines lets machines
/// die.
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
            const QString lines = commandsWith(u"# %1 LIST"_s.arg(QLatin1StringView(script)));
            QVERIFY(!lines.isEmpty());
            text(script, lines.toUtf8());
        }
    }

    void aKilledShardIsContinued() {
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

    void aNameThatIsNotUtf8IsConverted() {
        text("shards/0000", "a.txt\ncaf\xe9.txt\n");
        const ToolRun copied = shell("cp b.txt $(printf 'caf\\351.txt')");
        QCOMPARE(copied.exitCode, 0);
        QCOMPARE(run("convert-shard"), "");
        QCOMPARE(shell("ls pdfs/0000 | wc -l").out.trimmed(), "2");
        QCOMPARE(shell("rm pdfs/0000/* $(printf 'caf\\351.txt')").exitCode, 0);
    }

    void aPartThatLacksAnInputIsNotRecorded() {
        text("b.txt", "");
        QVERIFY(QFile::remove(path("b.txt")));
        QCOMPARE(run("merge-shard"), "exit status 1");
        QCOMPARE(in("parts"), QStringList({u"0000.lock"_s, u"0000.new"_s, u"0000.pdf"_s}));
        const ToolRun said = shell(commandsWith(u"is not whole"_s).toUtf8());
        QVERIFY2(said.out.startsWith("shards/0000 is not whole\nb.txt: "), said.out.constData());

        text("b.txt", "b.txt");
        QCOMPARE(run("merge-shard"), "");
        QCOMPARE(in("parts"), QStringList({u"0000.json"_s, u"0000.lock"_s, u"0000.pdf"_s}));
        QCOMPARE(linesOf(PdfProbe(path("parts/0000.pdf"))).size(), 3);
        QCOMPARE(shell(commandsWith(u"is not whole"_s).toUtf8()).out, "");
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
