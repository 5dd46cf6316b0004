// SPDX-License-Identifier: Apache-2.0

#include "compress/CompressionPass.h"

#include "CompressionCase.h"
#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class CompressionPassTest : public QObject, protected CompressionCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void aPhotoIsSampledDownToItsPrintedSizeAndLooksAlike() {
        writeJpegPage("BT /F 12 Tf 20 250 Td (Caption) Tj ET q 288 0 0 216 50 20 cm /Im0 Do Q");
        const QString copy = compressed();
        const auto images = PdfProbe(copy).images();
        QCOMPARE(images.size(), 1);
        QCOMPARE(images[0][kWidthColumn], u"600"_s);
        QCOMPARE(images[0][kHeightColumn], u"450"_s);
        QCOMPARE(images[0][kEncodingColumn], u"jpeg"_s);
        QVERIFY(changeOf(copy) < 5);
        QVERIFY(PdfProbe(copy).text().contains(u"Caption"_s));
        QString log;
        QVERIFY2(PdfProbe(copy).isValid(&log), qPrintable(log));
    }

    void theOutcomeSaysWhatWasSaved() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        QCOMPARE(outcome.bytesBefore, QFileInfo(m_path).size());
        QCOMPARE(outcome.bytesAfter, QFileInfo(copy).size());
        QVERIFY(outcome.bytesAfter < outcome.bytesBefore / 2);
    }

    void eachFilterMakesItSmaller_data() {
        QTest::addColumn<int>("width");
        QTest::newRow("300 per inch") << 1200;
        QTest::newRow("below all resolutions") << 280;
    }

    void eachFilterMakesItSmaller() {
        QFETCH(const int, width);
        const int height = width * 3 / 4;
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .stream(5, imageKeys(width, height, kJpegRgb), jpeg(photo(width, height)))
                    .write(m_path));
        qint64 before = QFileInfo(m_path).size();
        for (int index = 1; index <= 3; ++index) {
            const qint64 after = run(index).bytesAfter;
            QVERIFY2(after < before, qPrintable(u"%1: %2"_s.arg(index).arg(after)));
            before = after;
        }
    }

    void theLargestUseCountsThroughNestedForms() {
        QVERIFY(photoPage("q 72 0 0 54 0 0 cm /Im0 Do Q q 2 0 0 2 0 0 cm /Fm0 Do Q")
                    .stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)))
                    .stream(6,
                            "/Type /XObject /Subtype /Form /BBox [0 0 400 300] /Matrix [2 0 0 2 0 "
                            "0] /Resources << /XObject << /A 5 0 R >> >>",
                            "q 72 0 0 54 0 0 cm /A Do Q")
                    .write(m_path));
        const auto images = PdfProbe(compressed()).images();
        // 72 points, four times enlarged, at 150 per inch.
        QVERIFY(!images.isEmpty());
        QCOMPARE(images[0][kWidthColumn], u"600"_s);
    }

    void anImageUsedManyTimesIsDoneOnce() {
        writeJpegPage("q 288 0 0 216 0 0 cm /Im0 Do Q q 200 0 0 150 9 9 cm /Im0 Do /Im0 Do Q");
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 1);
    }

    void colorsKeepTheirSpaces_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("color");
        const QImage grey = photo(1200, 900, QImage::Format_Grayscale8);
        const QByteArray rgb = samplesOf(photo(1200, 900), 3);
        QTest::newRow("grey jpeg")
            << QByteArray("/ColorSpace /DeviceGray /BitsPerComponent 8 /Filter /DCTDecode")
            << jpeg(grey) << u"gray"_s;
        QTest::newRow("flate photo")
            << QByteArray("/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode")
            << flate(rgb) << u"rgb"_s;
        QTest::newRow("plain photo")
            << QByteArray("/ColorSpace /DeviceRGB /BitsPerComponent 8") << rgb << u"rgb"_s;
        QTest::newRow("cmyk")
            << QByteArray("/ColorSpace /DeviceCMYK /BitsPerComponent 8 /Filter /FlateDecode")
            << flate(samplesOf(photo(1200, 900, QImage::Format_RGBA8888), 4)) << u"cmyk"_s;
        QByteArray ramp;
        for (int i = 0; i < 256; ++i) {
            ramp += QByteArray(3, static_cast<char>(i)).toHex();
        }
        QTest::newRow("indexed") << "/ColorSpace [/Indexed /DeviceRGB 255 <" + ramp +
                                        ">] /BitsPerComponent 8 /Filter /FlateDecode"
                                 << flate(samplesOf(grey, 1)) << u"rgb"_s;
    }

    void colorsKeepTheirSpaces() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        QFETCH(const QString, color);
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .stream(5, imageKeys(1200, 900, keys), data)
                    .write(m_path));
        isHalved(compressed(), color);
    }

    void anImageWithFarTooLargeAColorTableStays() {
        const QByteArray table(1 << 20, 'p');
        auto page = photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        page.stream(5,
                    imageKeys(1200, 900,
                              "/ColorSpace [/Indexed /DeviceRGB 255 8 0 R] /BitsPerComponent 8 "
                              "/Filter /FlateDecode"),
                    flate(samplesOf(photo(1200, 900, QImage::Format_Grayscale8), 1)))
            .stream(8, "/Filter /FlateDecode", flate(table));
        QVERIFY(page.write(m_path));
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesKept.size(), std::size_t(1));
        QCOMPARE(outcome.imagesKept[0].reason, u"an unusual colour space"_s);
    }

    void aStreamCompressedTwiceKeepsItsBytes() {
        QVERIFY(photoPage({})
                    .stream(4, "/Filter [/FlateDecode /FlateDecode]",
                            flate(flate("q 288 0 0 216 50 20 cm /Im0 Do Q")))
                    .stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)))
                    .write(m_path));
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        QVERIFY(PdfProbe(copy).json().simplified().contains(
            "\"/Filter\": [ \"/FlateDecode\", \"/FlateDecode\" ]"));
        QVERIFY(difference(PdfProbe(m_path).render(1, 100), PdfProbe(copy).render(1, 100)) < 5);
    }

    void anEmptyStreamGetsNoFilter() {
        const QByteArray content("BT /F 12 Tf 20 250 Td (Words that stay) Tj ET\n");
        auto page = photoPage(content + QByteArray("0 0 m 400 300 l S\n").repeated(1000));
        page.stream(5, {}, {});
        QVERIFY(page.object(3,
                            "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents [5 0 "
                            "R 4 0 R] /Resources << /Font << /F 7 0 R >> >> >>")
                    .write(m_path));
        const QString copy = compressed();
        QVERIFY(readFile(copy).size() < 2000);
        QVERIFY(readFile(copy).contains("<< /Length 0 >>"));
        QCOMPARE(PdfProbe(copy).render(1, 100), PdfProbe(m_path).render(1, 100));
    }

    void whatIsNoPhotoStaysAndSaysWhy_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("reason");
        QByteArray drawing(qsizetype(1200) * 900 * 3, '\xff');
        for (int i = 0; i < drawing.size(); i += 90) {
            drawing[i] = 0;
        }
        QTest::newRow("line art")
            << QByteArray("/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode")
            << flate(drawing) << u"line art"_s;
        QTest::newRow("bilevel")
            << QByteArray("/ColorSpace /DeviceGray /BitsPerComponent 1 /Filter /FlateDecode")
            << flate(QByteArray(qsizetype(150) * 900, '\x5a')) << u"would not get smaller"_s;
        QTest::newRow("stencil") << QByteArray(
                                        "/ImageMask true /BitsPerComponent 1 /Filter /FlateDecode")
                                 << flate(QByteArray(qsizetype(150) * 900, '\x5a'))
                                 << u"would not get smaller"_s;
        QTest::newRow("colour key")
            << kJpegRgb + " /Mask [0 1 0 1 0 1]" << jpeg(photo(1200, 900)) << u"masked by colour"_s;
        QTest::newRow("other size than said")
            << kJpegRgb << jpeg(photo(600, 450))
            << u"the data is of another size than the image says"_s;
    }

    void whatIsNoPhotoStaysAndSaysWhy() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        QFETCH(const QString, reason);
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .stream(5, imageKeys(1200, 900, keys), data)
                    .write(m_path));
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QCOMPARE(outcome.imagesKept.size(), std::size_t(1));
        QCOMPARE(outcome.imagesKept[0].reason, reason);
        QCOMPARE(PdfProbe(copy).render(1, 100), PdfProbe(m_path).render(1, 100));
    }

    void aDamagedImageStaysAndIsNamed() {
        const QByteArray whole = jpeg(photo(1200, 900));
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .stream(5, imageKeys(1200, 900, kJpegRgb), whole.first(whole.size() / 2))
                    .write(m_path));
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QCOMPARE(outcome.imagesKept.size(), std::size_t(1));
        QCOMPARE(outcome.imagesKept[0].page, 1);
        QCOMPARE(outcome.imagesKept[0].object, 5);
        QVERIFY(outcome.imagesKept[0].reason.startsWith(u"damaged"_s));
    }

    void aSoftMaskIsScaledWithItsImage() {
        writeMaskedPage("0 0 1 rg 0 0 400 300 re f q 288 0 0 216 50 20 cm /Im0 Do Q", 1200, 900,
                        opacity(1200, 900));
        const QString copy = compressed();
        const auto images = PdfProbe(copy).images();
        QCOMPARE(images.size(), 2);
        for (const QStringList &image : images) {
            QCOMPARE(image[kWidthColumn], u"600"_s);
        }
        QVERIFY(changeOf(copy) < 5);
    }

    void aDocumentWithoutImagesNeverGrows() {
        test::writePdf(m_path, 3);
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QVERIFY(QFileInfo(copy).size() <= QFileInfo(m_path).size());
        QCOMPARE(PdfProbe(copy).pageCount(), 3);
    }

    void plainStreamsAreCompressedAndUnusedOnesGo() {
        QByteArray content("BT /F 12 Tf 20 250 Td (Words that stay) Tj ET\n");
        content += QByteArray("0 0 m 400 300 l S\n").repeated(1000);
        auto page = photoPage(content);
        page.stream(5, "/Unused true", QByteArray(20000, 'u'));
        QVERIFY(page.object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 "
                               "R /Resources << /Font << /F 7 0 R >> >> >>")
                    .write(m_path));
        const QString copy = compressed();
        const QByteArray bytes = readFile(copy);
        QVERIFY(bytes.size() < 2000);
        QVERIFY(!bytes.contains("/Unused"));
        QVERIFY(PdfProbe(copy).text().contains(u"Words that stay"_s));
        QCOMPARE(PdfProbe(copy).render(1, 100), PdfProbe(m_path).render(1, 100));
    }

    void linksAndBoxesStay() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q",
                      "/CropBox [10 10 390 290] /Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 "
                      "50 50] /A << /S /URI /URI (https://example.org/) >> >>]");
        const QString copy = compressed();
        QVERIFY(PdfProbe(copy).json().contains("https://example.org/"));
        QCOMPARE(PdfProbe(copy).box(u"CropBox"_s, 1), PdfProbe(m_path).box(u"CropBox"_s, 1));
    }

    void theStructureStays() {
        PdfFixture page = taggedPage({"Alpha", "one"}, "/K 11 0 R");
        page.object(11, element("Document", 10, "[12 0 R 13 0 R]"))
            .object(12, element("H1", 11, "0"))
            .object(13, element("P", 11, "1"))
            .object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font "
                       "<< /F 3 0 R >> /XObject << /I 20 0 R >> >> /Contents [5 0 R 21 0 R] >>")
            .stream(20, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)))
            .stream(21, {}, "q 90 0 0 90 0 0 cm /I Do Q");
        QVERIFY(page.write(m_path));
        const QString copy = compressed();
        QVERIFY(copy != m_path);
        QVERIFY(PdfProbe(m_path).structureText().contains(u"Alpha"_s));
        QCOMPARE(PdfProbe(copy).structureText(), PdfProbe(m_path).structureText());
    }

    void everyPageIsReportedWhenItIsWritten() {
        test::writePdf(m_path, 4);
        QList<std::pair<int, int>> pages;
        compress(m_path, optionsOf(1),
                 [&](int pageIndex, int pageCount) { pages.emplaceBack(pageIndex, pageCount); });
        QCOMPARE(pages, (QList<std::pair<int, int>>{{0, 4}, {1, 4}, {2, 4}, {3, 4}}));
    }

    void aStopEndsThePassAndLeavesNoCopy() {
        test::writePdf(m_path, 4);
        std::stop_source stop;
        CompressionOptions options = optionsOf(1);
        options.stop = stop.get_token();
        int written = 0;
        const CompressionOutcome outcome = compress(m_path, options, [&](int, int) {
            ++written;
            stop.request_stop();
        });
        QCOMPARE(written, 1);
        QCOMPARE(outcome.error, u"The conversion was stopped"_s);
        QVERIFY(!outcome.convertInfo);
        QVERIFY(QDir(m_temporaryFolder)
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void imagesThatStayAreNamedInTheOrderOfTheirPages() {
        const QByteArray keys = imageKeys(
            1200, 900, "/ColorSpace /DeviceGray /BitsPerComponent 1 /Filter /FlateDecode");
        const QByteArray data = flate(QByteArray(qsizetype(150) * 900, '\x5a'));
        // The image of the first page stands behind that of the second.
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .object(2, "<< /Type /Pages /Kids [20 0 R 3 0 R] /Count 2 >>")
                    .object(20, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents "
                                "4 0 R /Resources << /XObject << /Im0 21 0 R >> >> >>")
                    .stream(5, keys, data)
                    .stream(21, keys, data + '\n')
                    .write(m_path));
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesKept.size(), std::size_t(2));
        QCOMPARE(outcome.imagesKept[0].page, 1);
        QCOMPARE(outcome.imagesKept[0].object, 21);
        QCOMPARE(outcome.imagesKept[1].page, 2);
        QCOMPARE(outcome.imagesKept[1].object, 5);
    }

    void aMissingFilterIsAnErrorAndNothingIsHandedOver() {
        test::writePdf(m_path, 1);
        const QString filter = filterFile(1);
        QVERIFY(QFile::remove(filter));
        const CompressionOutcome outcome = run(1);
        QVERIFY(outcome.error.contains(filter));
        QVERIFY(!outcome.convertInfo);
    }

    void aBrokenFilterNamesTheKey() {
        test::writePdf(m_path, 1);
        const QString filter = filterFile(1);
        QByteArray text = test::readFile(filter);
        text.replace("<integer>150</integer>", "<integer>0</integer>");
        QVERIFY(QFile::remove(filter));
        test::writeFile(filter, text);
        QVERIFY(run(1).error.contains(u"\"Resolution\""_s));
    }

    void aFailedPassHandsNothingOver() {
        test::writeFile(m_path, "no document at all");
        const CompressionOutcome outcome = run(1);
        QVERIFY(!outcome.error.isEmpty());
        QVERIFY(!outcome.convertInfo);
    }
};

FOLIOFORGE_TEST(CompressionPassTest)
#include "CompressionPassTest.moc"
