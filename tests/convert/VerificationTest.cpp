// SPDX-License-Identifier: Apache-2.0

#include "VerificationCase.h"
#include "error/Error.h"
#include "image/PdfImage.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <stop_token>

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

} // namespace

/// Pages that are held against their sources before their PDF gets its name.
class VerificationTest : public QObject, protected VerificationCase {
    Q_OBJECT

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
        try {
            return verifyDocument(finished(file), {record}, {}).at(0).reason();
        } catch (const Error &error) {
            return error.reason();
        }
    }

    /// A PDF that stands already; `bytes` counts what is read of it.
    static WrittenDocument counted(const SourceFile &file, std::atomic<qint64> &bytes) {
        WrittenDocument document = finished(file);
        document.readBytes = [&](qint64 offset, std::span<char> target) {
            bytes += std::ssize(target);
            return file.readAt(offset, target);
        };
        return document;
    }

  private Q_SLOTS:
    void init() { setUpVerifying(); }

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

    void aPageThatLackedItsResourcesIsThatOfTheSource() {
        PdfFixture pdf;
        pdf.object(1, "<< /Type /Catalog /Pages 2 0 R >>")
            .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>")
            .object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] >>");
        QVERIFY(pdf.write(path("bare.pdf")));
        addFile(path("bare.pdf"));
        QCOMPARE(faults(convertTo(path("out/bare.pdf"))), QByteArrayList());
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

    void whatPagesShareIsReadOnceAlthoughOneOfThemDiffers() {
        PdfFixture fixture;
        fixture.object(1, kCatalog).pages(4, 3);
        fixture.object(3, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Shared 20 0 R >>")
            .stream(20, {}, QByteArray(8 << 20, ' '));
        EntryRecord record;
        record.pages = 3;
        record.source = {saved("pages.pdf", fixture), {}};
        const SourceFile file = SourceFile::open(
            writeFile(path("changed.pdf"), fixture.bytes().replace("(Page 2)", "(Page X)")));
        std::atomic<qint64> bytes = 0;
        const auto results = verifyDocument(counted(file, bytes), {record}, {});
        QCOMPARE(results.at(0).faults.size(), std::size_t{1});
        QVERIFY(bytes < 2 * file.version().size);
    }

    void aStopEndsTheCheckOfTheBytes() {
        PdfFixture fixture;
        fixture.object(1, kCatalog).pages(4, 1).stream(6, {}, QByteArray(8 << 20, ' '));
        const SourceFile file = SourceFile::open(saved("long.pdf", fixture));
        std::atomic<qint64> bytes = 0;
        WrittenDocument document = counted(file, bytes);
        document.checksum = 0;
        EntryRecord record;
        record.pages = 1;
        record.source = {file.version().path, {}};
        std::stop_source stop;
        stop.request_stop();
        VerifyOptions options;
        options.stop = stop.get_token();
        QString reason;
        try {
            verifyDocument(document, {record}, options);
        } catch (const Error &error) {
            reason = error.reason();
        }
        QCOMPARE(reason, u"The conversion was stopped"_s);
        QVERIFY(bytes < file.version().size);
    }

    void aPdfHasAsManyPagesAsItsRecord() {
        const QString pdf = writePdf(path("pages.pdf"), 3);
        EntryRecord record;
        record.pages = 2;
        record.source = {pdf, {}};
        QCOMPARE(reasonOf(pdf, record), u"The PDF has 3 pages instead of 2"_s);
    }
};

FOLIOFORGE_TEST(VerificationTest)
#include "VerificationTest.moc"
