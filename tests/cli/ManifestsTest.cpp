// SPDX-License-Identifier: Apache-2.0

#include "Schemas.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QByteArray faultsIn(const QString &manifest) {
    return schemaFaultsOf(u"manifest"_s, readFile(manifest).replace('\n', ' '));
}

QJsonObject read(const QString &manifest) {
    return QJsonDocument::fromJson(readFile(manifest)).object();
}

} // namespace

/// The lists of --manifest.
class ManifestsTest : public QObject, CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void inputsAndOutputsStandWithTheirChecksums() {
        const QString manifest = path("list.json");
        const ToolRun run =
            convert({u"--title"_s, u"A title"_s, u"--verify"_s, u"--manifest"_s, manifest,
                     text("a.txt"), writePng(path("b.png"), 3, 2), path("missing.txt")});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(faultsIn(manifest), QByteArray());
        const QJsonObject list = read(manifest);
        const QJsonArray inputs = list[u"inputs"_s].toArray();
        QCOMPARE(inputs.size(), 3);
        QList<QString> sums;
        for (const auto &input : inputs) {
            sums += member(input.toObject(), "sha256");
        }
        QVERIFY(sums.contains(sha256(path("a.txt"))) && sums.contains(sha256(path("b.png"))));
        const QJsonArray outputs = list[u"outputs"_s].toArray();
        QCOMPARE(outputs.size(), 2);
        QCOMPARE(member(outputs[0].toObject(), "sha256"),
                 sha256(member(outputs[0].toObject(), "file")));
        QVERIFY(list[u"options"_s].toArray().contains(u"--title=A title"_s));
    }

    void whatCannotBeAManifestIsRefusedBeforeAnythingIsMade_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("no folder")
            << u"no/list.json"_s << QByteArray("is in no folder that can be written to");
        QTest::newRow("standard output")
            << u"-"_s << QByteArray("It goes into a file; ./- names one");
    }
    void whatCannotBeAManifestIsRefusedBeforeAnythingIsMade() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, words);
        const ToolRun run = convert({u"--manifest"_s, name, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(words), run.err);
        QVERIFY(outputs().isEmpty());
    }

    void aManifestMayStandInTheFolderThatIsMadeForThePdfs() {
        const QString manifest = path("made/list.json");
        const ToolRun run = runTool(kProgram, {u"--manifest"_s, manifest, u"--output-folder"_s,
                                               path("made"), text("a.txt")});
        QVERIFY2(run.exitCode == 0, run.err);
        QCOMPARE(faultsIn(manifest), QByteArray());
    }

    void aDateBehind2262IsThatOfItsFile() {
        const QString file = text("a.txt");
        setModified(file, QDateTime(QDate(2300, 1, 2), QTime(3, 4, 5)));
        QCOMPARE(convert({u"--manifest"_s, path("list.json"), file}).exitCode, 0);
        const QJsonObject input = read(path("list.json"))[u"inputs"_s].toArray()[0].toObject();
        const QDateTime written = QDateTime::fromString(member(input, "modified"), Qt::ISODate);
        // As late as the file system can tell.
        QCOMPARE(written.toSecsSinceEpoch(), QFileInfo(file).lastModified().toSecsSinceEpoch());
    }

    void sha256sumReadsTheSecondForm() {
        const QString odd = path("odd \\ name\n.txt");
        writeFile(odd, "odd");
        const QString list = path("list.sha256");
        QCOMPARE(convert({u"--manifest"_s, list, text("a.txt"), odd}).exitCode, 0);
        const ToolRun check = runTool(u"sha256sum"_s, {u"--strict"_s, u"-c"_s, list});
        QVERIFY2(check.exitCode == 0, check.err);
        QCOMPARE(check.out.count(": OK"), 4);
        text("a.txt", "changed");
        QCOMPARE(runTool(u"sha256sum"_s, {u"-c"_s, list}).exitCode, 1);
    }

    void passwordsAreNotInIt() {
        const QString password = writeFile(path("password"), "open sesame\n");
        const QString manifest = path("list.json");
        QCOMPARE(
            convert({u"--user-password-file"_s, password, u"--manifest"_s, manifest, text("a.txt")})
                .exitCode,
            0);
        QVERIFY(!readFile(manifest).contains("sesame"));
    }

    void aFileOfItsNameStays() {
        const QString manifest = writeFile(path("list.json"), "mine");
        QCOMPARE(convert({u"--manifest"_s, manifest, text("a.txt")}).exitCode, 2);
        QCOMPARE(readFile(manifest), QByteArray("mine"));
        QVERIFY(QDir(path("out")).isEmpty());
        QCOMPARE(convert({u"--overwrite"_s, u"always"_s, u"--manifest"_s, manifest, text("a.txt")})
                     .exitCode,
                 0);
        QCOMPARE(faultsIn(manifest), QByteArray());
    }

    void noFileOfTheRunBecomesAManifest_data() {
        QTest::addColumn<QByteArray>("arguments");
        QTest::newRow("input") << QByteArray("--manifest in/a.txt in/a.txt");
        QTest::newRow("input by another name") << QByteArray("--manifest link.txt in/a.txt");
        QTest::newRow("input that is refused")
            << QByteArray("--manifest in/b.png in/b.png in/a.txt");
        QTest::newRow("input of a folder") << QByteArray("--manifest in/b.png in");
        QTest::newRow("merged PDF") << QByteArray("--manifest ./known.pdf --merge known in/a.txt");
        QTest::newRow("new PDF") << QByteArray(
            "--manifest out/../new.pdf --merge new.pdf in/a.txt");
        QTest::newRow("PDF of an input") << QByteArray("--manifest 'a(1).pdf' in/a.txt in/a.txt");
        QTest::newRow("PDF to verify")
            << QByteArray("--manifest ./known.pdf --verify-only known.pdf in/a.txt");
    }
    void noFileOfTheRunBecomesAManifest() {
        QFETCH(const QByteArray, arguments);
        QVERIFY(QDir().mkpath(path("in")));
        text("in/a.txt");
        text("in/b.png", "no picture");
        QCOMPARE(
            shell("ln in/a.txt link.txt && folioforge-cli --merge known.pdf in/a.txt").exitCode, 0);
        const QByteArray before = shell("find . -type f | xargs sha256sum | sort").out;
        const ToolRun run = shell("folioforge-cli --overwrite always " + arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains("--manifest: "), run.err);
        QCOMPARE(shell("find . -type f | xargs sha256sum | sort").out, before);
    }

    void whatHasNoNameToReadItByIsNotGivenToSha256sum() {
        const ToolRun run =
            shell("printf 3 > $'\\xff.txt' && printf 4 > b.txt && printf 1 | folioforge-cli "
                  "--manifest list.sha256 --merge all.pdf - <(printf 2) $'\\xff.txt' b.txt");
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err.count("is left out"), 3);
        shell("rm $'\\xff.txt'"); // Qt would leave it.
        const ToolRun check = shell("sha256sum --strict -c list.sha256");
        QCOMPARE(check.out, QByteArray("b.txt: OK\n./all.pdf: OK\n"));
        QCOMPARE(check.exitCode, 0);
    }

    void inputsStandInTheOrderOfTheReport() {
        const ToolRun run = convert({u"--json"_s, u"--manifest"_s, path("list.json"), text("a.txt"),
                                     path("missing.txt"), text("b.txt")});
        QJsonArray inputs;
        for (const QJsonObject &input : objectsOf(run.out)) {
            inputs.append(input);
        }
        QCOMPARE(inputs.size(), 3);
        QCOMPARE(read(path("list.json"))[u"inputs"_s].toArray(), inputs);
    }

    void whatCannotBeDescribedIsRefused() {
        const QString manifest = path("list.json");
        QCOMPARE(convert({u"--dry-run"_s, u"--manifest"_s, manifest, text("a.txt")}).exitCode, 2);
        QCOMPARE(runTool(kProgram, {u"--merge"_s, u"-"_s, u"--manifest"_s, manifest, text("a.txt")})
                     .exitCode,
                 2);
        QCOMPARE(convert({u"--manifest"_s, path("out/"), text("a.txt")}).exitCode, 2);
        QVERIFY(!QFile::exists(manifest));
    }

    void aFinishedPdfGetsOneToo() {
        const QString pdf = path("all.pdf");
        QCOMPARE(runTool(kProgram, {u"--merge"_s, pdf, text("a.txt")}).exitCode, 0);
        const QString manifest = path("list.json");
        QCOMPARE(
            runTool(kProgram, {u"--verify-only"_s, pdf, u"--manifest"_s, manifest, path("a.txt")})
                .exitCode,
            0);
        QCOMPARE(faultsIn(manifest), QByteArray());
        QCOMPARE(member(read(manifest)[u"outputs"_s].toArray()[0].toObject(), "sha256"),
                 sha256(pdf));
    }
};

FOLIOFORGE_TEST(ManifestsTest)
#include "ManifestsTest.moc"
