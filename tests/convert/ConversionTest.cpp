// SPDX-License-Identifier: Apache-2.0

#include "convert/Conversion.h"

#include "ConversionCase.h"
#include "convert/PageWriters.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/Memory.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

#include <QColorSpace>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;
using test::Stopper;

namespace {

/// Writes down what it hears.
class Recorder : public ConversionObserver {
  public:
    void progressChanged(float value) override { values += value; }
    void entryDone(std::size_t index, bool written) override {
        entries += QString::number(index) + (written ? u'+' : u'-');
    }

    QList<float> values;
    QStringList entries;
};

/// Pixels that cannot be compressed, with a colour profile.
QImage noise(int side, QImage::Format format) {
    QImage image(side, side, format);
    QRandomGenerator random(1);
    random.generate(reinterpret_cast<quint32 *>(image.bits()),
                    reinterpret_cast<quint32 *>(image.bits()) + qsizetype(side) * side);
    image.setColorSpace(QColorSpace::AdobeRgb);
    return image;
}

} // namespace

class ConversionTest : public QObject, protected test::ConversionCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void entriesOfEveryKindMergeInTheirOrder() {
        addText("a.txt", "first words");
        addFile(test::writePng(path("b.png"), 300, 150));
        addFile(test::writePdf(path("c.pdf"), 2));
        m_options.merge = true;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QCOMPARE(outcome.close.status, CloseResult::Status::Written);
        QCOMPARE(outcome.close.path, path("out/all.pdf"));
        const PdfProbe probe(outcome.close.path);
        QVERIFY(probe.isValid());
        QCOMPARE(probe.pageCount(), 4);
        QVERIFY(probe.text(1).contains(u"first words"_s));
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(0, 0, 595, 842));
        QCOMPARE(probe.box(u"MediaBox"_s, 2), QRectF(0, 0, 300, 150));
        QCOMPARE(probe.box(u"MediaBox"_s, 3), QRectF(0, 0, 200, 100));
        QCOMPARE(probe.box(u"MediaBox"_s, 4), QRectF(0, 0, 210, 100));
        QCOMPARE(outcome.entries.size(), 3);
        QCOMPARE(outcome.entries[2].pages, 2);
        QVERIFY(outcome.entries[1].embeddedAs);
        QVERIFY(!outcome.entries[0].embeddedAs);
    }

    void tooLittleMemoryIsAReason_data() {
        QTest::addColumn<int>("spared");
        for (const int spared : {0, 1, 2, 5, 10, 50}) {
            QTest::addRow("%d", spared) << spared;
        }
    }
    void tooLittleMemoryIsAReason() {
        QFETCH(const int, spared);
        addText("a.txt", "words");
        const PDFFileInfo *const entry = m_list[0].get();
        const QString target = path("out/a.pdf");
        PDFOutcome outcome;
        {
            const test::FailingMemory failing(spared);
            outcome = createPDF({&entry, 1}, target, m_options);
        }
        QCOMPARE(outcome.isWritten(), QFile::exists(target));
        QVERIFY(outcome.isWritten() || !outcome.problem().isEmpty() ||
                !outcome.entries[0].reason.isEmpty());
    }

    void fivePagesArriveWithABoxEach() {
        addFile(test::writePdf(path("five.pdf"), 5));
        const PDFOutcome outcome = convertTo(path("out/five.pdf"));
        QCOMPARE(outcome.entries[0].pages, 5);
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.pageCount(), 5);
        for (int page = 1; page <= 5; ++page) {
            QCOMPARE(probe.box(u"MediaBox"_s, page), QRectF(0, 0, 190 + 10 * page, 100));
        }
    }

    void anImageFillsTheFixedPage() {
        addFile(test::writePng(path("a.png"), 100, 50));
        m_options.imagePage = {ImagePageCustom, 612, 792, {36, 36, 36, 36}};
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(0, 0, 612, 792));
        // Drawn from (36, 261) to (576, 531) from below: rows 261 to 531 from above, too.
        const QImage page = probe.render(1);
        QCOMPARE(page.size(), QSize(612, 792));
        QCOMPARE(page.pixelColor(40, 265), QColor(Qt::red));
        QCOMPARE(page.pixelColor(570, 527), QColor(Qt::red));
        QCOMPARE(page.pixelColor(30, 400), QColor(Qt::white));
        QCOMPARE(page.pixelColor(300, 256), QColor(Qt::white));
        QCOMPARE(page.pixelColor(300, 536), QColor(Qt::white));
    }

    void theDocumentSaysWhatItIsAndWhoMadeIt() {
        addText("a.txt", "x");
        m_options.info.title = u"Títle 标题"_s;
        m_options.info.author = u"A. Uthor"_s;
        m_options.info.subject = u"Sub"_s;
        m_options.info.keywords = u"k, w"_s;
        const PdfProbe probe(convertTo(path("out/a.pdf")).close.path);
        QCOMPARE(probe.info(u"Title"_s), m_options.info.title);
        QCOMPARE(probe.info(u"Author"_s), m_options.info.author);
        QCOMPARE(probe.info(u"Subject"_s), m_options.info.subject);
        QCOMPARE(probe.info(u"Keywords"_s), m_options.info.keywords);
        QCOMPARE(probe.info(u"Creator"_s), u"Vesprin-Folioforge"_s);
    }

    void progressFillsTheFirstHalfOfTheBar() {
        for (const char *name : {"a.txt", "b.txt", "c.txt"}) {
            addText(name, "x");
        }
        m_options.merge = true;
        Recorder recorder;
        convertTo(path("out/all.pdf"), &recorder);
        QCOMPARE(recorder.values, (QList<float>{1.0F / 3 * 50, 2.0F / 3 * 50, 50.0F}));
        QCOMPARE(recorder.entries.join(u' '), u"0+ 1+ 2+"_s);
    }

    void aSingleEntryReachesFifty() {
        addText("a.txt", "x");
        Recorder recorder;
        convertTo(path("out/a.pdf"), &recorder);
        QCOMPARE(recorder.values, QList<float>{50.0F});
    }

    void theCompressionPassFillsTheBarFromFiftyToHundred() {
        QCOMPARE(compressionProgress(0, 4), 62.5F);
        QCOMPARE(compressionProgress(3, 4), 100.0F);
    }

    void anEntryThatFailsIsLeftOutAndTheOthersGoOn() {
        addText("a.txt", "x");
        addFile(test::writeFile(path("broken.png"), "no image"));
        addFile(test::writeFile(path("broken.pdf"), "no document"));
        addFile(path("missing.jpg"));
        addFile(path("missing.pdf"));
        addText("b.txt", "x");
        m_options.merge = true;
        Recorder recorder;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"), &recorder);
        QCOMPARE(outcome.close.status, CloseResult::Status::Written);
        QCOMPARE(PdfProbe(outcome.close.path).pageCount(), 2);
        QCOMPARE(recorder.entries.join(u' '), u"0+ 1- 2- 3- 4- 5+"_s);
        for (const std::size_t failed : {1U, 2U, 3U, 4U}) {
            QVERIFY(!outcome.entries[failed].reason.isEmpty());
            QCOMPARE(outcome.entries[failed].pages, 0);
        }
    }

    void aTextThatOverflowsTheTemporaryFolderLeavesTheOthersAsTheyAre() {
        // Made data beyond 8 MB goes into a temporary file, and there is no folder for one. Beside
        // the picture there is less room than for the pages that wait to be compressed.
        QVERIFY(noise(1660, QImage::Format_RGB32).save(path("noise.bmp")));
        QRandomGenerator random(1);
        QByteArray text;
        while (text.size() < 1'500'000) {
            text += static_cast<char>(random.bounded(0x21, 0x7F));
        }
        addFile(path("noise.bmp"));
        addText("long.txt", text);
        addText("after.txt", "the words after");
        m_options.merge = true;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(path("nowhere")));
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
        QCOMPARE(outcome.close.status, CloseResult::Status::Written);
        QVERIFY(outcome.entries[0].written);
        QVERIFY(!outcome.entries[1].written);
        QVERIFY2(outcome.entries[1].reason.contains(u"temporary file"_s),
                 qPrintable(outcome.entries[1].reason));
        QCOMPARE(outcome.entries[1].pages, 0);
        const PdfProbe probe(outcome.close.path);
        QVERIFY(probe.isValid());
        QCOMPARE(probe.pageCount(), 2);
        QVERIFY(probe.text(2).contains(u"the words after"_s));
    }

    void anEntryThatFillsTheDiskLeavesTheDocumentThatTheOthersMake() {
        QVERIFY(noise(1000, QImage::Format_RGB32).save(path("first.bmp")));
        // The profile is kept before there is no room for the pixels, and the third has it too.
        QVERIFY(noise(1600, QImage::Format_ARGB32).save(path("profiled.png")));
        QVERIFY(noise(100, QImage::Format_ARGB32).save(path("small.png")));
        m_options.merge = true;
        m_options.info.created = QDateTime::fromSecsSinceEpoch(0);
        addFile(path("first.bmp"));
        addFile(path("small.png"));
        const QByteArray whole = test::readFile(convertTo(path("out/two.pdf")).close.path);
        m_list.insert(m_list.begin() + 1, std::make_unique<PDFFileInfo>(path("profiled.png")));
        test::FaultyCalls calls;
        calls.room = 4 << 20;
        m_options.calls = calls;
        const PDFOutcome outcome = convertTo(path("out/three.pdf"));
        QVERIFY(!outcome.entries[1].written);
        QVERIFY(outcome.entries[2].written);
        QVERIFY(!whole.isEmpty());
        QCOMPARE(test::readFile(outcome.close.path), whole);
    }

    void sourcesWithoutTagsAreNamedWhereOthersHaveSome() {
        const auto tagged = test::headingAndText("a", "b");
        QVERIFY(tagged.write(path("tagged.pdf")));
        addListed(path("tagged.pdf"));
        addFile(test::writePdf(path("plain.pdf"), 1));
        addText("plain.txt", "words\n");
        const Warnings warnings = convertTo(path("out/both.pdf")).close.warnings;
        QCOMPARE(warnings.size(), 1U);
        QCOMPARE(warnings.front().name() + u": "_s + warnings.front().text,
                 u"partly-tagged: Not all of the PDF is tagged, as these are not: plain.pdf"_s);
    }

    void aSourceWithTagsAloneNeedsNoWarning() {
        QVERIFY(test::headingAndText("a", "b").write(path("tagged.pdf")));
        addFile(path("tagged.pdf"));
        QVERIFY(convertTo(path("out/one.pdf")).close.warnings.empty());
        m_list.clear();
        addText("plain.txt", "words\n");
        QVERIFY(convertTo(path("out/two.pdf")).close.warnings.empty());
    }

    void aProtectedSourceAddsNoPages() {
        const QString plain = test::writePdf(path("plain.pdf"), 1);
        addFile(test::encryptPdf(plain, path("locked.pdf"), u"user"_s));
        addText("a.txt", "x");
        m_options.merge = true;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY(!outcome.entries[0].written);
        QCOMPARE(PdfProbe(outcome.close.path).pageCount(), 1);
    }

    void withoutASinglePageNoFileIsWritten() {
        addFile(test::writeFile(path("broken.png"), "no image"));
        const PDFOutcome outcome = convertTo(path("out/broken.pdf"));
        QCOMPARE(outcome.close.status, CloseResult::Status::Failed);
        QVERIFY(!outcome.close.reason.isEmpty());
        QVERIFY(outputs().isEmpty());
    }

    void aNameTakenMeanwhileGivesWayInSingleMode() {
        addText("a.txt", "x");
        const QString foreign = test::writeFile(path("out/a.pdf"), "someone else's");
        const PDFOutcome outcome = convertTo(foreign);
        QCOMPARE(outcome.close.status, CloseResult::Status::Written);
        QCOMPARE(outcome.close.path, path("out/a(1).pdf"));
        QCOMPARE(test::readFile(foreign), QByteArray("someone else's"));
    }

    void aNameTakenMeanwhileEndsTheMerge() {
        addText("a.txt", "x");
        m_options.merge = true;
        const QString foreign = test::writeFile(path("out/all.pdf"), "someone else's");
        QCOMPARE(convertTo(foreign).close.status, CloseResult::Status::NameTaken);
        QCOMPARE(test::readFile(foreign), QByteArray("someone else's"));
        QCOMPARE(outputs(), QStringList{u"all.pdf"_s});
    }

    void aFolderThatVanishedIsAFailureWithAReason() {
        addText("a.txt", "x");
        const PDFOutcome outcome = convertTo(path("gone/a.pdf"));
        QCOMPARE(outcome.close.status, CloseResult::Status::Failed);
        QVERIFY(!outcome.close.reason.isEmpty());
    }

    void aStoppedRunLeavesNothing() {
        for (const char *name : {"a.txt", "b.txt", "c.txt"}) {
            addText(name, "x");
        }
        m_options.merge = true;
        Stopper stopper;
        const PDFOutcome outcome =
            convertTo(path("out/all.pdf"), &stopper, stopper.source.get_token());
        QCOMPARE(outcome.close.status, CloseResult::Status::Failed);
        QCOMPARE(outcome.entries.size(), 1);
        QVERIFY(outputs().isEmpty());
    }

    void aTextIsStoppedAtItsNextPage() {
        addText("a.txt", QByteArray("line\n").repeated(100'000));
        std::stop_source source;
        source.request_stop();
        PDFContext context(path("out/a.pdf"), {});
        addTextPage(*m_list.front(), context, m_options, source.get_token());
        QCOMPARE(context.pageCount(), 0);
    }

    void sourcesAreNeverChanged() {
        const QByteArray text("kept as it is");
        addText("a.txt", text);
        const QString pdf = test::writePdf(path("b.pdf"), 1);
        const QByteArray bytes = test::readFile(pdf);
        addFile(pdf);
        m_options.merge = true;
        convertTo(path("out/all.pdf"));
        QCOMPARE(test::readFile(path("a.txt")), text);
        QCOMPARE(test::readFile(pdf), bytes);
    }

    void metadataOfAPhotoIsLeftOutOnRequest() {
        QByteArray photo = test::readFile(test::inSource(u"tests/data/image/photo.jpg"_s));
        photo.insert(2, QByteArray("\xFF\xFE\0\x0Dour home 12", 15)); // A comment.
        addFile(test::writeFile(path("a.jpg"), photo));
        convertTo(path("out/kept.pdf"));
        QVERIFY(test::readFile(path("out/kept.pdf")).contains("our home 12"));
        m_options.stripMetadata = true;
        convertTo(path("out/left.pdf"));
        QVERIFY(!test::readFile(path("out/left.pdf")).contains("our home 12"));
    }

    void anImageThatChangedSinceItWasListedIsPlacedAsItIs() {
        addFile(test::writePng(path("a.png"), 100, 50));
        test::writePng(path("a.png"), 40, 80);
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QCOMPARE(PdfProbe(outcome.close.path).box(u"MediaBox"_s, 1), QRectF(0, 0, 40, 80));
    }
};

FOLIOFORGE_TEST(ConversionTest)
#include "ConversionTest.moc"
