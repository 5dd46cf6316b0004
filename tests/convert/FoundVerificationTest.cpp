// SPDX-License-Identifier: Apache-2.0

#include "VerificationCase.h"
#include "error/Error.h"
#include "image/PdfImage.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The PDF in plain words, as qpdf writes it.
QString inPlainWords(const QString &pdf, const QString &target) {
    const ToolRun run = runTool(u"qpdf"_s, {u"--qdf"_s, u"--normalize-content=n"_s,
                                            u"--object-streams=disable"_s, pdf, target});
    return run.exitCode == 0 ? target : QString::fromUtf8(run.err);
}

/// The PDF in plain words, with `from` for `to` in it wherever it stands.
QString edited(const QString &pdf, const QString &target, const QByteArray &from,
               const QByteArray &to) {
    const QString plain = inPlainWords(pdf, target + u".qdf"_s);
    QByteArray bytes = readFile(plain);
    if (!bytes.contains(from)) {
        return {};
    }
    const QString changed = writeFile(target + u".changed"_s, bytes.replace(from, to));
    runTool(u"sh"_s, {u"-c"_s, u"fix-qdf \"$0\" > \"$1\""_s, changed, target});
    return target;
}

} // namespace

/// Pages of a PDF that stands already, ours or another program's, that are held against its
/// sources.
class FoundVerificationTest : public QObject, protected VerificationCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUpVerifying(); }

    void aFinishedPdfIsHeldAgainstItsSources() {
        addText("a.txt", "words");
        addFile(data("image/photo.jpg"));
        addFile(data("pdf/writer-form.pdf"));
        const QByteArray before = readFile(written());
        const PDFOutcome outcome = verified(path("out/whole.pdf"));
        QCOMPARE(faults(outcome), QByteArrayList());
        QCOMPARE(readFile(path("out/whole.pdf")), before);
        QCOMPARE(outputs(), QStringList{u"whole.pdf"_s});
    }

    void thePageThatDiffersIsNamed() {
        addText("a.txt", "words");
        addFile(data("image/photo.jpg"));
        addText("b.txt", "one two three");
        const QString pdf = written();
        writeFile(path("b.txt"), "one two thrice");
        m_list.back() = std::make_unique<PDFFileInfo>(path("b.txt"));
        const PDFOutcome outcome = verified(pdf);
        QVERIFY(outcome.entries[0].written);
        QVERIFY(outcome.entries[1].written);
        QVERIFY(!outcome.entries[2].written);
        QCOMPARE(
            outcome.entries[2].reason,
            u"Page 3 of the PDF is not its source: its characters are not those of the text"_s);
    }

    void whatAnEditChangesIsFound_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("nothing") << QByteArray("(words)") << QByteArray("(words)");
        QTest::newRow("letters") << QByteArray("(words)") << QByteArray("(wards)");
        QTest::newRow("map of characters") << QByteArray("<77><0077>") << QByteArray("<77><0078>");
        QTest::newRow("width of a picture") << QByteArray("/Width 24") << QByteArray("/Width 23");
        QTest::newRow("colours of a picture")
            << QByteArray("/ColorSpace /DeviceRGB") << QByteArray("/ColorSpace /DeviceGray");
        QTest::newRow("number of colours")
            << QByteArray("/DeviceRGB\n    11\n") << QByteArray("/DeviceRGB\n    21\n");
        QTest::newRow("no number of colours")
            << QByteArray("/DeviceRGB\n    11\n") << QByteArray("/DeviceRGB\n    /11\n");
        QTest::newRow("annotation")
            << QByteArray("/Subtype /Widget") << QByteArray("/Subtype /Square");
        QTest::newRow("box") << QByteArray("595.303937007874") << QByteArray("595.9");
    }

    void whatAnEditChangesIsFound() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        addText("a.txt", "words");
        addFile(data("image/palette.png"));
        addFile(data("image/photo.jpg"));
        addFile(data("pdf/writer-form.pdf"));
        const QString pdf = edited(written(), path("changed.pdf"), from, to);
        QVERIFY2(!pdf.isEmpty(), "nothing to change");
        QVERIFY(PdfProbe(pdf).pageCount() == 4);
        const PDFOutcome outcome = verified(pdf);
        QVERIFY2(faults(outcome).isEmpty() == (from == to), faults(outcome).join('\n'));
    }

    /// A reader that knows no vertical tab finds no length, and no words.
    void aSpaceThatOnlySomeReadersKnowIsFound() {
        addText("a.txt", "words");
        QByteArray bytes = readFile(written());
        const auto length = bytes.indexOf("/Length ");
        QVERIFY(length > 0);
        bytes[length + 7] = '\v';
        const QString pdf = writeFile(path("changed.pdf"), bytes);
        QVERIFY(PdfProbe(pdf).text() != PdfProbe(path("out/whole.pdf")).text());
        QVERIFY(!faults(verified(pdf)).isEmpty());
    }

    void theSameInAStringOrACommentIsNoFault() {
        const QString pdf = path("tabs.pdf");
        PdfFixture page = photoPage({});
        page.object(7, "[(a\v\\)b) %\v\n <0b> /Name]");
        QVERIFY(page.write(pdf));
        addFile(pdf);
        QCOMPARE(faults(verified(pdf)), QByteArrayList());
    }

    void bytesBeforeTheHeaderAreNoFault() {
        PdfFixture fixture;
        fixture.object(1, kCatalog).pages(4, 1);
        for (int number = 6; number < 300; ++number) {
            fixture.object(number, "null");
        }
        addFile(saved("pages.pdf", fixture));
        const QString pdf =
            writeFile(path("mail.pdf"), QByteArray(900, '-') + '\n' + fixture.bytes());
        QCOMPARE(PdfProbe(pdf).pageCount(), 1);
        QCOMPARE(faults(verified(pdf)), QByteArrayList());
    }

    void aPdfOfAnotherProgramIsHeldAgainstItsSources() {
        addFile(data("pdf/ghostscript.pdf"));
        addFile(data("pdf/chromium-letter.pdf"));
        const ToolRun run =
            runTool(u"qpdf"_s, {u"--empty"_s, u"--pages"_s, data("pdf/ghostscript.pdf"),
                                data("pdf/chromium-letter.pdf"), u"--"_s, path("qpdf.pdf")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(faults(verified(path("qpdf.pdf"))), QByteArrayList());
    }

    void picturesThatAnotherProgramPutInAreTheirSource() {
        for (const char *name : {"photo.jpg", "grey.png", "palette.png", "bilevel-g4.tif"}) {
            addFile(data("image/") + QLatin1StringView(name));
        }
        QStringList files;
        for (const auto &entry : m_list) {
            files += entry->filePathName();
        }
        const ToolRun run =
            runTool(u"img2pdf"_s, files + QStringList{u"-S"_s, u"A4"_s, u"-o"_s, path("img.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
        const PDFOutcome outcome = verified(path("img.pdf"));
        QCOMPARE(faults(outcome), QByteArrayList());
        QCOMPARE(outcome.entries[0].warnings.at(0).code, WarningCode::LaidOutOtherwise);
    }

    void aTextInAnotherLayoutIsItsSource() {
        addText("a.txt", QByteArray("some words that are broken into rows ").repeated(200));
        addText("b.txt", "the end");
        m_options.readable.emplace();
        const QString pdf = written();
        m_options.readable.reset();
        const PDFOutcome outcome = verified(pdf);
        QCOMPARE(faults(outcome), QByteArrayList());
        QCOMPARE(outcome.entries[0].warnings.at(0).code, WarningCode::LaidOutOtherwise);
    }

    void aPartThatPagesShareIsAFaultOfEachOfThem() {
        QVERIFY(PdfFixture().object(1, kCatalog).pages(4, 3).write(path("pages.pdf")));
        addFile(path("pages.pdf"));
        const QString pdf = edited(written(), path("changed.pdf"), "/Helvetica", "/Courier");
        QVERIFY2(!pdf.isEmpty(), "nothing to change");
        const PDFOutcome outcome = verified(pdf);
        QVERIFY2(outcome.entries[0].verification, faults(outcome).join('\n'));
        QCOMPARE(outcome.entries[0].verification->faults.size(), std::size_t{3});
    }

    void whatFollowsAPageThatCannotBeReadIsStillFound() {
        addFile(data("image/two.gif"));
        addText("a.txt", "words");
        m_options.allPictures = true;
        const QByteArray bytes = readFile(inPlainWords(written(), path("plain.pdf")));
        const qsizetype at = bytes.indexOf("/Contents ", bytes.indexOf("%% Page 2"));
        const QByteArray contents = bytes.sliced(at, bytes.indexOf('\n', at) - at);
        const QString pdf =
            edited(path("out/whole.pdf"), path("changed.pdf"), contents, "/Contents [1]");
        QVERIFY2(!pdf.isEmpty(), "nothing to change");
        const PDFOutcome outcome = verified(pdf);
        const EntryVerification &pictures = outcome.entries[0].verification.value();
        QCOMPARE(pictures.pages, (std::vector{PageProof::Pixels, PageProof::Differs}));
        QCOMPARE(pictures.faults.at(0).page, 2);
        QVERIFY2(outcome.entries[1].written, qPrintable(outcome.entries[1].reason));
    }

    void aFileThatIsGoneIsAFaultOfThePagesThatNeedIt() {
        EntryRecord record;
        for (const char *name : {"image/photo.jpg", "image/lossy.webp", "image/colour.webp"}) {
            addFile(data(name));
            record.pictures.push_back({{}, {}, 1, {}, recordOf(toPdfImage(data(name)))});
        }
        record.pages = 3;
        record.pictures[1].image.checksum += 1; // More of both is to be told.
        record.pictures[2].image.checksum += 1;
        record.picturesAgain = [](const auto &take) {
            take(toPdfImage(data("image/photo.jpg")));
            take(toPdfImage(data("image/lossy.webp")));
            throw Error(u"it is gone"_s);
        };
        const SourceFile file = SourceFile::open(written());
        const EntryVerification found = verifyFoundDocument(finished(file), {record}, {}).at(0);
        QCOMPARE(found.pages,
                 (std::vector{PageProof::Bytes, PageProof::Pixels, PageProof::Differs}));
        QCOMPARE(found.reason(), u"Page 3 of the PDF is not its source: it is gone"_s);
    }

    void everyPictureOfAFileThatAnotherProgramPutInIsItsSource() {
        addFile(data("image/two.gif"));
        const ToolRun run =
            runTool(u"img2pdf"_s, {data("image/two.gif"), u"-o"_s, path("img.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
        m_options.allPictures = true;
        const PDFOutcome outcome = verified(path("img.pdf"));
        QCOMPARE(faults(outcome), QByteArrayList());
        QCOMPARE(outcome.entries[0].verification.value().pages.size(), std::size_t{2});
    }

    void aPageThatUnfoldsWithoutEndIsNotRead_data() {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("compressed") << QByteArray("4 0 R ").repeated(65);
        QTest::newRow("compressed and not")
            << QByteArray("4 0 R ").repeated(60) + QByteArray("8 0 R ").repeated(5);
    }

    void aPageThatUnfoldsWithoutEndIsNotRead() {
        QFETCH(const QByteArray, contents);
        addText("a.txt", "words");
        const QByteArray blanks(4 << 20, ' ');
        PdfFixture page = photoPage({});
        page.stream(4, "/Filter /FlateDecode", flate(blanks)).stream(8, {}, blanks);
        QByteArray object = page.objects().at(3);
        object.replace("/Contents 4 0 R", "/Contents [" + contents + ']');
        QVERIFY(page.object(3, object).write(path("long.pdf")));
        QCOMPARE(verified(path("long.pdf")).entries[0].reason,
                 u"Page 1 of the PDF is not its source: the contents of a page cannot be read"_s);
    }

    void aFontOfManyLongTextsIsReadAtOnce() {
        addText("a.txt", "words");
        PdfFixture page = photoPage("BT /F 9 Tf <0041> Tj ET");
        page.object(7, "<< /Type /Font /Subtype /Type0 /Encoding /Identity-H /ToUnicode 8 0 R >>")
            .stream(8, {},
                    "1 beginbfrange <0000> <FFFF> <" + QByteArray("0041").repeated(1 << 20) +
                        "> endbfrange");
        QVERIFY(page.write(path("long.pdf")));
        QVERIFY(!faults(verified(path("long.pdf"))).isEmpty()); // Text by text it takes minutes.
    }

    void aReducedPictureKeepsItsOpacity() {
        addFile(data("image/translucent.png"));
        const QString pdf = edited(written(), path("changed.pdf"), "/SMask", "/Other");
        m_options.compressIndex = 2;
        QVERIFY(!faults(verified(pdf)).isEmpty());
        QCOMPARE(faults(verified(path("out/whole.pdf"))), QByteArrayList());
    }

    void pagesOfNoInputAreFound() {
        addText("a.txt", "words");
        addText("b.txt", "more");
        const QString pdf = written();
        m_list.pop_back();
        const PDFOutcome outcome = verified(pdf);
        QCOMPARE(faults(outcome).size(), 1);
    }

    void aReducedPictureCountsWhereThatIsAskedFor() {
        const QString jpeg = path("photo.jpg");
        QVERIFY(photo(800, 600).save(jpeg, "JPG", 95));
        addFile(jpeg);
        const QString small = path("small.jpg");
        QVERIFY(photo(800, 600)
                    .scaled(400, 300, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                    .save(small, "JPG", 70));
        QCOMPARE(runTool(u"img2pdf"_s, {small, u"-o"_s, path("small.pdf")}).exitCode, 0);
        QVERIFY(!faults(verified(path("small.pdf"))).isEmpty());
        m_options.compressIndex = 2;
        const PDFOutcome outcome = verified(path("small.pdf"));
        QCOMPARE(faults(outcome), QByteArrayList());
        QCOMPARE(outcome.entries[0].verification->pages[0], PageProof::Likeness);
    }
};

FOLIOFORGE_TEST(FoundVerificationTest)
#include "FoundVerificationTest.moc"
