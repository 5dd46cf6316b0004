// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PdfFixture.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// --verify and --verify-only as their users see them.
class VerifyTest : public QObject, CommandLineCase {
    Q_OBJECT

    QString merged() {
        const QString pdf = path("all.pdf");
        const ToolRun run =
            runTool(kProgram, {u"--merge"_s, pdf, text("a.txt", "one"),
                               writePng(path("b.png"), 30, 20), text("c.txt", "two")});
        return run.exitCode == 0 ? pdf : QString::fromUtf8(run.err);
    }

    ToolRun verify(const QStringList &arguments) const {
        return runTool(kProgram, QStringList{u"--verify-only"_s, path("all.pdf")} + arguments);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void theReportSaysByWhatEachPageWasShown() {
        const ToolRun run =
            convert({u"--json"_s, u"--verify"_s, text("a.txt"), writePng(path("b.png"), 30, 20)});
        QCOMPARE(run.exitCode, 0);
        const auto objects = objectsOf(run.out);
        const QJsonArray text{
            QJsonObject{{u"first"_s, 1}, {u"last"_s, 1}, {u"by"_s, u"characters"_s}}};
        const QJsonArray picture{
            QJsonObject{{u"first"_s, 1}, {u"last"_s, 1}, {u"by"_s, u"bytes"_s}}};
        QCOMPARE(objects[0][u"verified"_s].toArray(), text);
        QCOMPARE(objects[1][u"verified"_s].toArray(), picture);
    }

    void withoutItNothingIsSaid() {
        QVERIFY(!convert({u"--json"_s, text("a.txt")}).out.contains("verified"));
    }

    void aFinishedPdfIsFoundToBeItsSources() {
        const QString pdf = merged();
        const QByteArray before = readFile(pdf);
        const ToolRun run = verify({path("a.txt"), path("b.png"), path("c.txt")});
        QVERIFY2(run.exitCode == 0, run.err);
        QVERIFY(run.out.startsWith(pdf.toUtf8() + '\n'));
        QVERIFY(run.out.contains("b.png: page 2 is its source"));
        QCOMPARE(readFile(pdf), before);
    }

    void whatDiffersIsNamedWithItsPage() {
        merged();
        text("c.txt", "three");
        const ToolRun run = verify({path("a.txt"), path("b.png"), path("c.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("c.txt: Page 3 of the PDF is not its source: its characters"),
                 run.err);
        QVERIFY(!run.err.contains("a.txt:"));
    }

    void aPdfThatIsMissingOrDamagedIsNamed() {
        QCOMPARE(verify({text("a.txt")}).exitCode, 1);
        writeFile(path("all.pdf"), "%PDF-1.7\nnothing");
        const ToolRun run = verify({text("a.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("a.txt: The "), run.err);
    }

    void aProtectedPdfOpensWithItsPassword() {
        const QString password = writeFile(path("password"), "open sesame\n");
        const QStringList protection{u"--user-password-file"_s, password};
        QCOMPARE(runTool(kProgram,
                         protection + QStringList{u"--merge"_s, path("all.pdf"), text("a.txt")})
                     .exitCode,
                 0);
        QCOMPARE(verify(protection + QStringList{path("a.txt")}).exitCode, 0);
        QCOMPARE(verify({path("a.txt")}).exitCode, 1);
    }

    void anotherLayoutIsAWarning() {
        const QByteArray words = QByteArray("words that make rows ").repeated(40);
        QCOMPARE(runTool(kProgram, {u"--text-layout"_s, u"readable"_s, u"--merge"_s,
                                    path("all.pdf"), text("a.txt", words)})
                     .exitCode,
                 0);
        const ToolRun run = verify({path("a.txt")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("laid out otherwise"));
        QCOMPARE(verify({u"--strict"_s, path("a.txt")}).exitCode, 1);
        QCOMPARE(verify({u"--strict"_s, u"--text-layout"_s, u"readable"_s, path("a.txt")}).exitCode,
                 0);
    }

    void thePdfMayBeAmongTheInputs() {
        QVERIFY(!merged().isEmpty());
        const ToolRun run = verify({path("all.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
    }

    void itsNameIsTakenAsItIs() {
        QVERIFY(QFile::copy(merged(), path("found")));
        QVERIFY(QFile::rename(path("all.pdf"), path("found.pdf")));
        const ToolRun run = runTool(kProgram, {u"--verify-only"_s, path("found"), u"--overwrite"_s,
                                               u"older"_s, path("found.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
        QVERIFY(run.out.startsWith(path("found").toUtf8() + '\n'));
    }

    void itGoesWithNoOutput() {
        for (const QStringList &options :
             {QStringList{u"--merge"_s, path("x.pdf")}, QStringList{u"--verify"_s},
              QStringList{u"--output-folder"_s, path("out")}}) {
            QCOMPARE(verify(options + QStringList{text("a.txt")}).exitCode, 2);
        }
    }

    /// A missing object is null (ISO 32000-1, 7.3.10), and numbers of objects change.
    void valuesThatAreObjectsOfTheirOwnAreCompared() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1).object(20, "true");
        source.object(21, "<< /Type /Annot /Subtype /Text /Rect [9 9 29 29] /Contents (note) "
                          "/Open 20 0 R >>");
        QByteArray page = source.objects().at(4);
        page.replace("/Contents 5 0 R", "/Contents [5 0 R 66 0 R] /Annots [21 0 R]");
        QVERIFY(page.contains("66 0 R"));
        QVERIFY(source.object(4, page).write(path("in.pdf")));
        const ToolRun run = merge("out/all.pdf", {u"--verify"_s, path("in.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
    }

    /// Its components are red, green and blue, and nothing in the JPEG says so.
    void aSmallerPdfOfAJpegThatIsNotTransformedIsItsSource() {
        const QString scan = path("scan.tif");
        QCOMPARE(
            runTool(u"convert"_s, {u"-seed"_s, u"3"_s, u"-size"_s, u"800x600"_s,
                                   u"plasma:red-blue"_s, u"-depth"_s, u"8"_s, u"-define"_s,
                                   u"tiff:rows-per-strip=608"_s, u"-compress"_s, u"jpeg"_s, scan})
                .exitCode,
            0);
        QCOMPARE(merge("plain.pdf", {scan}).exitCode, 0);
        QVERIFY(PdfProbe(path("plain.pdf")).json().contains("\"/ColorTransform\": 0"));
        const ToolRun run = merge("small.pdf", {u"--verify"_s, u"--compress"_s, u"96m"_s,
                                                u"--image-dpi"_s, u"300"_s, scan});
        QVERIFY2(run.exitCode == 0, run.err);
        QVERIFY(QFileInfo(path("small.pdf")).size() < QFileInfo(path("plain.pdf")).size() / 2);
    }

    void aSmallerPdfIsHeldAgainstTheOneBefore() {
        QVERIFY(writePng(path("big.png"), 2000, 1500, 600).size() > 0);
        const ToolRun run =
            convert({u"--json"_s, u"--verify"_s, u"--compress"_s, u"96m"_s, path("big.png")});
        QVERIFY2(run.exitCode == 0, run.err);
        QVERIFY(!run.out.contains("notCompressed"));
    }
};

FOLIOFORGE_TEST(VerifyTest)
#include "VerifyTest.moc"
