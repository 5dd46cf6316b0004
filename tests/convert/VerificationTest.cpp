// SPDX-License-Identifier: Apache-2.0

#include "verify/Verification.h"
#include "ConversionCase.h"
#include "error/Error.h"
#include "image/PdfImage.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The system, save that one byte of the output is another once it is flushed to the disk.
class FlippingCalls : public SystemCalls {
  public:
    /// `at` counts from the start of the file, or below 0 from its end.
    explicit FlippingCalls(off_t at)
        : m_at(at) {}

    int fsync(int fd) override {
        struct stat status = {};
        if (!m_isFlipped && ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode)) {
            m_isFlipped = true;
            const off_t place = m_at < 0 ? status.st_size + m_at : m_at;
            char byte = 0;
            if (::pread(fd, &byte, 1, place) == 1) {
                byte = static_cast<char>(byte ^ 1);
                static_cast<void>(::pwrite(fd, &byte, 1, place));
            }
        }
        return SystemCalls::fsync(fd);
    }

  private:
    off_t m_at;
    bool m_isFlipped = false;
};

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

/// Pages that are held against their sources, before a PDF gets its name or when it stands already.
class VerificationTest : public QObject, protected ConversionCase {
    Q_OBJECT

    static QString data(const char *name) {
        return inSource(u"tests/data/"_s + QLatin1StringView(name));
    }

    void addAll(const QString &folder) {
        QStringList files;
        for (QDirIterator found(inSource(folder), QDir::Files); found.hasNext();) {
            files += found.next();
        }
        std::ranges::sort(files);
        for (const QString &file : std::as_const(files)) {
            addFile(file);
        }
    }

    QByteArrayList faults(const PDFOutcome &outcome) const {
        QByteArrayList all;
        for (std::size_t i = 0; i < outcome.entries.size(); ++i) {
            const EntryOutcome &entry = outcome.entries[i];
            if (!entry.written || !entry.verification || !entry.verification->holds()) {
                all += (m_list[i]->fileName() + u": "_s + entry.reason).toUtf8();
            }
        }
        return all + (outcome.isWritten() ? QByteArrayList()
                                          : QByteArrayList{outcome.close.reason.toUtf8()});
    }

    /// Writes a PDF of the list to look for afterwards.
    QString written() {
        m_options.merge = true;
        return convertTo(path("out/whole.pdf")).close.path;
    }

    PDFOutcome verified(const QString &pdf) {
        m_options.merge = true;
        m_options.dryRun = true;
        m_options.verifyOnly = pdf;
        return convertTo(pdf);
    }

    PageProof proofOf(const char *file) {
        m_list.clear();
        addFile(data(file));
        const PDFOutcome outcome = convertTo(path("out/one.pdf"));
        QFile::remove(path("out/one.pdf"));
        return outcome.entries.at(0).verification.value().pages.at(0);
    }

    /// What is said of the first page of a PDF with this record.
    QString reasonOf(const QString &pdf, const EntryRecord &record) const {
        const SourceFile file = SourceFile::open(pdf);
        const WrittenDocument document{
            pdf.toStdString(), file.version().size,
            [&file](qint64 offset, std::span<char> target) { return file.readAt(offset, target); },
            std::nullopt};
        try {
            return verifyDocument(document, {record}, {}).at(0).reason();
        } catch (const Error &error) {
            return error.reason();
        }
    }

  private Q_SLOTS:
    void init() {
        setUp();
        m_options.verify = true;
    }

    void everyPictureOfTheTestsIsItsSource() {
        addAll(u"tests/data/image"_s);
        m_options.allPictures = true;
        QCOMPARE(faults(convertTo(path("out/all.pdf"))), QByteArrayList());
        QVERIFY(PdfProbe(path("out/all.pdf")).isValid());
    }

    void everyPdfOfTheTestsIsItsSource() {
        addAll(u"tests/data/pdf"_s);
        QCOMPARE(faults(convertTo(path("out/all.pdf"))), QByteArrayList());
    }

    void aPageSaysByWhatItWasShown() {
        QCOMPARE(proofOf("image/photo.jpg"), PageProof::Bytes);
        QCOMPARE(proofOf("image/palette.png"), PageProof::Bytes);
        QCOMPARE(proofOf("image/translucent.png"), PageProof::Pixels);
        QCOMPARE(proofOf("image/bilevel-strips.tif"), PageProof::Pixels);
        QCOMPARE(proofOf("pdf/ghostscript.pdf"), PageProof::Objects);
    }

    void everyTurnAndFitOfAPictureStandsWhereItShould() {
        for (const char *name :
             {"turned.webp", "turned.heic", "turned.jxl", "turned.avif", "photo.jpg"}) {
            addFile(data("image/") + QLatin1StringView(name));
        }
        m_options.imagePage = {ImagePageCustom, 300, 500, {10, 20, 30, 40}};
        for (const ImageFit fit : {ImageFit::Within, ImageFit::Shrink, ImageFit::Fill}) {
            m_options.imageLayout.fit = fit;
            QCOMPARE(faults(convertTo(path("out/fit.pdf"))), QByteArrayList());
            QVERIFY(QFile::remove(path("out/fit.pdf")));
        }
    }

    void textsOfManyScriptsHaveTheirCharacters() {
        const QByteArray text =
            "English (with) \\ signs\n\xC5\xBElu\xC5\xA5ou\xC4\x8Dk\xC3\xBD "
            "\xEF\xAC\x81 \xE6\xBC\xA2\xE5\xAD\x97\n\xD8\xA7\xD9\x84\xD8\xB9\xD8\xB1"
            "\xD8\xA8\xD9\x8A\xD8\xA9 \xE0\xA4\xB9\xE0\xA4\xBF\xE0\xA4\xA8\xE0\xA5\x8D"
            "\xE0\xA4\xA6\xE0\xA5\x80\n\tno glyph: \xEE\x84\xA3\n";
        addText("a.txt", text);
        addText("b.txt", text.repeated(60));
        addText("empty.txt", {});
        QCOMPARE(faults(convertTo(path("out/plain.pdf"))), QByteArrayList());
        m_options.readable.emplace();
        m_options.readable->header = u"{file}"_s;
        m_options.readable->footer = u"{page} of {pages}"_s;
        const PDFOutcome outcome = convertTo(path("out/readable.pdf"));
        QCOMPARE(faults(outcome), QByteArrayList());
        QVERIFY(outcome.entries[1].verification->missingGlyphs > 0);
    }

    void textsInArchivesHaveTheCharactersThatTheseAllow_data() {
        QTest::addColumn<bool>("archive");
        QTest::newRow("archive") << true;
        QTest::newRow("no archive") << false;
    }

    void textsInArchivesHaveTheCharactersThatTheseAllow() {
        QFETCH(bool, archive);
        const QByteArray family("\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7");
        addText("marks.txt",
                QByteArray("a mark\xEF\xBB\xBF within, \xEF\xBF\xBE and none\0.\n", 35) +
                    QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFin front\n"));
        addText("pictures.txt", family.repeated(50) + "\n\xE0\xA4\xB9\xE0\xA4\xBF\n");
        if (archive) {
            m_options.archive.emplace();
        }
        QCOMPARE(faults(convertTo(path("out/plain.pdf"))), QByteArrayList());
        m_options.readable.emplace();
        QCOMPARE(faults(convertTo(path("out/readable.pdf"))), QByteArrayList());
    }

    void whatNoFontHasIsCounted_data() {
        QTest::addColumn<bool>("archive");
        QTest::newRow("as boxes") << false;
        QTest::newRow("as a character") << true;
    }

    void whatNoFontHasIsCounted() {
        QFETCH(bool, archive);
        addText("a.txt", "none: \xEE\x84\xA3\xEE\x84\xA3\n");
        if (archive) {
            m_options.archive.emplace();
        }
        m_options.merge = true;
        const PDFOutcome made = convertTo(path("out/whole.pdf"));
        QCOMPARE(made.entries[0].verification.value().missingGlyphs, 2);
        QCOMPARE(verified(made.close.path).entries[0].verification.value().missingGlyphs, 2);
    }

    void chosenAndTurnedPagesAreThoseOfTheSource() {
        addFile(writePdf(path("pages.pdf"), 6));
        m_list.back()->setPageChoice({"5,2-3,5", {{90, true, "1"}, {180, false, "2-3"}}});
        QCOMPARE(faults(convertTo(path("out/chosen.pdf"))), QByteArrayList());
    }

    void aProtectedPdfIsOpenedAgain() {
        addText("a.txt", "words");
        m_options.security.useUserPassword = true;
        m_options.security.userPassword = u"open sesame"_s;
        QCOMPARE(faults(convertTo(path("out/a.pdf"))), QByteArrayList());
        QVERIFY(!PdfProbe(path("out/a.pdf")).isValid());
    }

    void nothingThatChangesOnTheDiskGetsAName_data() {
        QTest::addColumn<int>("at");
        QTest::newRow("header") << 5;
        QTest::newRow("middle") << 900;
        QTest::newRow("trailer") << -60;
    }

    void nothingThatChangesOnTheDiskGetsAName() {
        QFETCH(int, at);
        addText("a.txt", "words");
        addFile(data("image/photo.jpg"));
        FlippingCalls calls(at);
        m_options.calls = calls;
        m_options.flush = Flush::Always;
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QVERIFY(!outcome.isWritten());
        QCOMPARE(outcome.close.reason, u"The PDF on the disk is not what was written"_s);
        QCOMPARE(outputs(), QStringList());
    }

    void aPictureIsHeldAgainstItsRecord_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("own bytes") << QByteArray("image/photo.jpg");
        QTest::newRow("pixels") << QByteArray("image/colour.webp");
    }

    void aPictureIsHeldAgainstItsRecord() {
        QFETCH(const QByteArray, name);
        addFile(data(name.constData()));
        const PdfImage image = toPdfImage(data(name.constData()));
        const QSizeF size = image.header.sizeInPoints(72);
        EntryRecord record;
        record.pages = 1;
        record.pictures = {{size, QRectF(QPointF(0, 0), size), 1, {}, recordOf(image)}};
        const QString pdf = written();
        QCOMPARE(reasonOf(pdf, record), QString());
        ImageRecord &picture = record.pictures[0].image;
        picture.checksum += 1;
        if (!picture.slices.empty()) {
            picture.slices.back().length -= 1;
        }
        QVERIFY2(reasonOf(pdf, record).endsWith(u"of its picture are not those of the file"),
                 qPrintable(reasonOf(pdf, record)));
    }

    void aTextIsHeldAgainstItsRecord() {
        addText("a.txt", "words");
        TextTracer tracer;
        tracer.addText(u"wards");
        EntryRecord record;
        record.pages = 1;
        record.text = {
            getTextPageSize(m_options.textPage), textFont()->size(), {tracer.finish()}, {}};
        const QString pdf = written();
        QCOMPARE(
            reasonOf(pdf, record),
            u"Page 1 of the PDF is not its source: its characters are not those of the text"_s);
    }

    void aPdfHasAsManyPagesAsItsRecord() {
        const QString pdf = writePdf(path("pages.pdf"), 3);
        EntryRecord record;
        record.pages = 2;
        record.source = {pdf, {}};
        QCOMPARE(reasonOf(pdf, record), u"The PDF has 3 pages instead of 2"_s);
    }

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
        const qsizetype at = bytes.indexOf("/Contents ");
        const QByteArray contents = bytes.sliced(at, bytes.indexOf('\n', at) - at);
        const QString pdf =
            edited(path("out/whole.pdf"), path("changed.pdf"), contents, "/Contents [1]");
        QVERIFY2(!pdf.isEmpty(), "nothing to change");
        const PDFOutcome outcome = verified(pdf);
        QVERIFY(!outcome.entries[0].written);
        QCOMPARE(outcome.entries[0].verification.value().pages.size(), std::size_t{2});
        QVERIFY2(outcome.entries[1].written, qPrintable(outcome.entries[1].reason));
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

    void aPageThatUnfoldsWithoutEndIsNotRead() {
        addText("a.txt", "words");
        PdfFixture page = photoPage({});
        page.stream(4, "/Filter /FlateDecode", flate(QByteArray(4 << 20, ' ')));
        QByteArray object = page.objects().at(3);
        object.replace("/Contents 4 0 R", "/Contents [" + QByteArray("4 0 R ").repeated(70) + ']');
        QVERIFY(page.object(3, object).write(path("long.pdf")));
        const PDFOutcome outcome = verified(path("long.pdf"));
        QVERIFY2(outcome.entries[0].reason.contains(u"compressed data"),
                 qPrintable(outcome.entries[0].reason));
    }

    void aFontOfManyLongTextsIsReadAtOnce() {
        addText("a.txt", "words");
        PdfFixture page = photoPage("BT /F 9 Tf <0041> Tj ET");
        page.object(7, "<< /Type /Font /Subtype /Type0 /Encoding /Identity-H /ToUnicode 8 0 R >>")
            .stream(8, {},
                    "1 beginbfrange <0000> <FFFF> <" + QByteArray("0041").repeated(1 << 20) +
                        "> endbfrange");
        QVERIFY(page.write(path("long.pdf")));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!faults(verified(path("long.pdf"))).isEmpty());
        constexpr int kSeconds = 20; // Text by text it takes minutes.
        QVERIFY(timer.elapsed() < kSeconds * 1000);
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

FOLIOFORGE_TEST(VerificationTest)
#include "VerificationTest.moc"
