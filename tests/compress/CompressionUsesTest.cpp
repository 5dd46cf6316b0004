// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "error/Error.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <csignal>
#include <cstring>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kDrawnAtOrigin("288 0 0 216 0 0 cm /Im0 Do");
const QByteArray kXObjects("/Resources << /XObject << /Im0 5 0 R >> >> ");
const QByteArray kFormKeys("/Type /XObject /Subtype /Form /BBox [0 0 400 300] ");

/// Lets no file of this process grow above `bytes` while it lives, as a full disk does.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

  private:
    void (*m_handler)(int);
    rlimit m_before = {};
};

} // namespace

/// Where the pass finds the images of a document, and what it leaves alone.
class CompressionUsesTest : public QObject, protected CompressionCase {
    Q_OBJECT

    /// The width in pixels of the only image of the copy.
    QString widthOfTheImage() const {
        const auto images = PdfProbe(compressed()).images();
        return images.size() == 1 ? images[0][kWidthColumn] : u"no single image"_s;
    }

    /// The pixels of the image in the copy's own words, where no tool lists it.
    bool copyHoldsWidth(const QByteArray &width) const {
        return PdfProbe(compressed()).json().contains("\"/Width\": " + width);
    }

    /// Whether the only image of the document is left because its size cannot be told.
    bool staysUnclear() const {
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        return outcome.imagesReduced == 0 && outcome.imagesKept.size() == 1 &&
               outcome.imagesKept[0].reason == u"drawn at a size that cannot be told"_s &&
               readFile(copy).contains(jpeg(photo(1200, 900)));
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aUserUnitEnlargesTheImage() {
        writeJpegPage("q 144 0 0 108 0 0 cm /Im0 Do Q", "/UserUnit 2");
        QCOMPARE(widthOfTheImage(), u"600"_s);
    }

    void anAppearanceIsStretchedToItsAnnotation() {
        auto page = photoPage("", "/Annots [<< /Type /Annot /Subtype /Stamp /F 4 /Rect [50 20 338 "
                                  "236] /AP << /N 6 0 R >> >>]");
        page.stream(6, "/Type /XObject /Subtype /Form /BBox [0 0 100 75] " + kXObjects,
                    "100 0 0 75 0 0 cm /Im0 Do");
        writePage(page);
        QVERIFY(copyHoldsWidth("600"));
        QVERIFY(changeOf(compressed()) < 5);
    }

    void anAppearanceOfOneOfSeveralStatesCounts() {
        auto page = photoPage("", "/Annots [<< /Type /Annot /Subtype /Stamp /AS "
                                  "/Off /Rect [50 20 338 236] /AP << /N << /On 6 0 R >> >> >>]");
        page.stream(6, "/Type /XObject /Subtype /Form /BBox [0 0 288 216] " + kXObjects,
                    kDrawnAtOrigin);
        writePage(page);
        QVERIFY(copyHoldsWidth("600"));
    }

    void aPatternIsFollowed() {
        auto page = photoPage("/Pattern cs /P scn 0 0 300 220 re f", {}, "/Pattern << /P 6 0 R >>");
        page.stream(6,
                    "/Type /Pattern /PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 288 216] "
                    "/XStep 288 /YStep 216 /Matrix [.5 0 0 .5 0 0] " +
                        kXObjects,
                    kDrawnAtOrigin);
        writePage(page);
        QVERIFY(copyHoldsWidth("300"));
        QVERIFY(changeOf(compressed()) < 5);
    }

    void theGroupOfASoftMaskIsFollowed() {
        auto page = photoPage("/G gs 1 0 0 rg 0 0 400 300 re f", {},
                              "/ExtGState << /G << /SMask << /S /Luminosity /G 6 0 R >> >> >>");
        page.stream(6,
                    "/Type /XObject /Subtype /Form /BBox [0 0 400 300] /Group << /S /Transparency "
                    "/CS /DeviceRGB >> " +
                        kXObjects,
                    kDrawnAtOrigin);
        writePage(page);
        QVERIFY(copyHoldsWidth("600"));
        QVERIFY(changeOf(compressed()) < 5);
    }

    void anImageInAGlyphStaysBecauseItsSizeCannotBeTold() {
        auto page = photoPage("BT /T 100 Tf 20 20 Td (a) Tj ET q 72 0 0 54 0 0 cm /Im0 Do Q");
        page.object(7, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>")
            .object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 R "
                       "/Resources << /XObject << /Im0 5 0 R >> /Font << /T 8 0 R >> >> >>")
            .object(8, "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 "
                       "0] /CharProcs << /a 9 0 R >> /Encoding << /Differences [97 /a] >> "
                       "/FirstChar 97 /LastChar 97 /Widths [1] " +
                           kXObjects + ">>")
            .stream(9, {}, "1 0 0 0 1 1 d1 q 2.88 0 0 2.16 0 0 cm /Im0 Do Q");
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void glyphsOfEveryFontWithinTheResourcesAreRead() {
        const auto font = [](const QByteArray &glyph) {
            return "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 0] "
                   "/CharProcs << /a " +
                   glyph +
                   " >> /Encoding << /Differences [97 /a] >> /FirstChar 97 /LastChar 97 /Widths "
                   "[1] " +
                   kXObjects + ">>";
        };
        auto page = photoPage("BT /B 100 Tf 20 20 Td (a) Tj ET q 72 0 0 54 0 0 cm /Im0 Do Q");
        page.object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 R "
                       "/Resources << /XObject << /Im0 5 0 R >> /Font << /A " +
                           font("8 0 R") + " /B " + font("9 0 R") + " >> >> >>")
            .stream(8, {}, "1 0 d0")
            .stream(9, {}, "1 0 0 0 1 1 d1 q 2.88 0 0 2.16 0 0 cm /Im0 Do Q");
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void whatStandsBehindDamagedContentKeepsItsSize() {
        // Drawn small before the break; how large behind it nobody can read.
        const QByteArray packed =
            flate("q 72 0 0 54 0 0 cm /Im0 Do Q " + QByteArray(200000, ' ') + kDrawnAtOrigin);
        auto page = photoPage({});
        page.stream(4, "/Filter /FlateDecode", packed.first(packed.size() - 40));
        writePage(page);
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QVERIFY(readFile(copy).contains(jpeg(photo(1200, 900))));
    }

    void whatOnlyDamagedContentDrawsLargeKeepsItsSize() {
        const QByteArray packed = flate(QByteArray(200000, ' ') + kDrawnAtOrigin);
        PdfFixture page = photoPage({});
        page.object(2, "<< /Type /Pages /Kids [3 0 R 8 0 R] /Count 2 >>")
            .stream(4, "/Filter /FlateDecode", packed.first(packed.size() - 40))
            .object(8, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 9 0 R " +
                           kXObjects + ">>")
            .stream(9, {}, "72 0 0 54 0 0 cm /Im0 Do");
        writePage(page);
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
    }

    void anImageOfAFormThatDrawsItselfStays() {
        auto page = photoPage("/Fm0 Do");
        page.stream(6,
                    "/Type /XObject /Subtype /Form /BBox [0 0 400 300] /Resources << /XObject << "
                    "/Im0 5 0 R /Fm0 6 0 R >> >>",
                    kDrawnAtOrigin + " /Fm0 Do");
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void anImageDrawnSmallOnThePageAndLargeInDeepFormsStays() {
        auto page = photoPage("q 72 0 0 54 0 0 cm /Im0 Do Q /Fm0 Do");
        constexpr int kDeep = 40;
        for (int depth = 0; depth <= kDeep; ++depth) {
            const QByteArray next = QByteArray::number(depth == kDeep ? 5 : 101 + depth);
            page.stream(depth == 0 ? 6 : 100 + depth,
                        "/Type /XObject /Subtype /Form /BBox [0 0 400 300] /Resources << /XObject "
                        "<< /X " +
                            next + " 0 R >> >>",
                        depth == kDeep ? "288 0 0 216 0 0 cm /X Do" : "/X Do");
        }
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void formsThatAllDrawEachOtherEnd() {
        // Without resources of their own; followed along every path they would take years.
        auto page = photoPage("/Fm0 Do");
        QByteArray names("/Im0 5 0 R /Fm0 6 0 R");
        QByteArray content = "q " + kDrawnAtOrigin + " Q";
        for (int number = 10; number < 40; ++number) {
            const QByteArray name = "/Fm" + QByteArray::number(number);
            names += " " + name + " " + QByteArray::number(number) + " 0 R";
            content += " " + name + " Do";
        }
        page.object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 R "
                       "/Resources << /XObject << " +
                           names + " >> >> >>");
        page.stream(6, kFormKeys, content);
        for (int number = 10; number < 40; ++number) {
            // Each of its own, or they would be one.
            page.stream(number, kFormKeys, content + "%" + QByteArray::number(number));
        }
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void aFormWithoutResourcesDrawsWhatEachOfItsHoldersNames() {
        auto page = photoPage("/Fm0 Do /Fm1 Do");
        page.object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 R "
                       "/Resources << /XObject << /Im0 5 0 R /Fm0 6 0 R /Fm1 8 0 R >> >> >>")
            .stream(6, kFormKeys, kDrawnAtOrigin)
            .stream(8, kFormKeys + "/Resources << /XObject << /Im0 9 0 R /Fm0 6 0 R >> >>",
                    "/Fm0 Do")
            .stream(9, imageKeys(1000, 750, kJpegRgb), jpeg(photo(1000, 750)));
        writePage(page);
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 2);
    }

    void whatIsDrawnWithinTooManySavedStatesStays() {
        writeJpegPage("q 72 0 0 54 0 0 cm /Im0 Do Q " + QByteArray("q ").repeated(2001) +
                      kDrawnAtOrigin + QByteArray(" Q").repeated(2001));
        QVERIFY(staysUnclear());
    }

    void whatAFormDrawsWithinTooManySavedStatesStays() {
        auto page = photoPage(QByteArray("q ").repeated(2001) + "/Fm0 Do");
        page.stream(6, kFormKeys + kXObjects, kDrawnAtOrigin);
        writePage(page);
        QVERIFY(staysUnclear());
    }

    void theInnermostOfManySavedStatesIsRestored() {
        // Were the first "cm" still to count behind its "Q", the image would be drawn a tenth as
        // large.
        writeJpegPage(QByteArray("q ").repeated(2001) + ".1 0 0 .1 0 0 cm Q " + kDrawnAtOrigin);
        QCOMPARE(widthOfTheImage(), u"600"_s);
    }

    void anImageDrawnBeyondAllNumbersKeepsItsSize() {
        const QByteArray huge(400, '9');
        writeJpegPage("q 72 0 0 54 0 0 cm /Im0 Do Q " + huge + " 0 0 " + huge +
                      " 0 0 cm 0 0 0 0 0 0 cm /Im0 Do");
        QVERIFY(copyHoldsWidth("1200"));
    }

    void formFieldsBookmarksAndTheTitleStay() {
        auto page = photoPage("q " + kDrawnAtOrigin + " Q", "/Annots [8 0 R]");
        page.object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [8 0 R] /DA (/F 9 Tf) "
                       ">> /Outlines 9 0 R /Metadata 11 0 R >>")
            .object(8, "<< /Type /Annot /Subtype /Widget /FT /Tx /T (Name) /V (Ada) /Rect [10 240 "
                       "90 260] /P 3 0 R >>")
            .object(9, "<< /Type /Outlines /First 10 0 R /Last 10 0 R /Count 1 >>")
            .object(10, "<< /Title (Chapter one) /Parent 9 0 R /Dest [3 0 R /Fit] >>")
            .stream(11, "/Type /Metadata /Subtype /XML", "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>");
        writePage(page);
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        const auto outline = [](const QString &path) {
            return runTool(u"mutool"_s, {u"show"_s, path, u"outline"_s}).out;
        };
        QVERIFY(outline(copy).contains("Chapter one"));
        QCOMPARE(outline(copy), outline(m_path));
        const QByteArray json = PdfProbe(copy).json();
        QVERIFY(json.contains("\"fullname\": \"Name\""));
        QVERIFY(json.contains("\"value\": \"Ada\"") || json.contains("\"value\": \"u:Ada\""));
        QCOMPARE(PdfProbe(copy).info(u"Metadata Stream"_s), u"yes"_s);
        QCOMPARE(PdfProbe(copy).info(u"Form"_s), PdfProbe(m_path).info(u"Form"_s));
    }

    void aCallThatFailsIsAnErrorAndNeverAMissingObject() {
        PdfFixture document;
        document.object(1, kCatalog).pages(4, 2).spread();
        QVERIFY(document.write(m_path));
        FaultyCalls counted;
        CompressionOptions options = optionsOf(1);
        options.calls = counted;
        const QString copy = kept(compress(m_path, options).convertInfo);
        QCOMPARE(PdfProbe(copy).pageCount(), 2);
        for (int call = 1; call <= counted.count(); ++call) {
            FaultyCalls calls;
            calls.fault = {call, EIO, false, {}};
            options.calls = calls;
            const CompressionOutcome outcome = compress(m_path, options);
            QVERIFY2(outcome.error.isEmpty()
                         ? readFile(outcome.convertInfo->tempFilePathName) == readFile(copy)
                         : outcome.error.contains(QString::fromLocal8Bit(std::strerror(EIO))),
                     qPrintable(outcome.error));
        }
    }

    void aFullDiskIsAnErrorAndLeavesNoTemporaryFile() {
        writeJpegPage("q " + kDrawnAtOrigin + " Q");
        const QByteArray before = readFile(m_path);
        CompressionOutcome outcome;
        {
            const FullDisk disk(8192);
            outcome = run(1);
        }
        QVERIFY2(outcome.error.contains(m_temporaryFolder), qPrintable(outcome.error));
        QVERIFY(!outcome.convertInfo);
        QVERIFY(QDir(m_temporaryFolder)
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QCOMPARE(readFile(m_path), before);
    }

    void aDiskThatFillsUpWhileTheCopyIsPutInPlaceKeepsTheDocument() {
        writeJpegPage("q " + kDrawnAtOrigin + " Q");
        const QByteArray before = readFile(m_path);
        const QString copy = compressed();
        {
            const FullDisk disk(8192);
            QVERIFY_THROWS_EXCEPTION(Error, putInPlace(*m_record, Flush::Never));
        }
        QCOMPARE(readFile(m_path), before);
        m_record.reset();
        QVERIFY(!QFile::exists(copy));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"document.pdf"_s});
    }

    void aMissingTemporaryFolderIsAnError() {
        writeJpegPage("q " + kDrawnAtOrigin + " Q");
        QVERIFY(QDir(m_temporaryFolder).removeRecursively());
        const QByteArray before = readFile(m_path);
        QVERIFY(run(1).error.startsWith(u"Cannot create a file in "_s + m_temporaryFolder));
        QCOMPARE(readFile(m_path), before);
    }
};

FOLIOFORGE_TEST(CompressionUsesTest)
#include "CompressionUsesTest.moc"
