// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "support/ByteOrder.h"
#include "support/CmykJpeg.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QColorSpace>
#include <QFileInfo>

#include <bitset>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// `height` rows of any width with a black bar at the left, packed by ITU-T T.6.
QByteArray group4(int height) {
    // Eight pixels white, eight black, white to the end; then rows like the one above, and the end.
    std::string bits = "001100110001011";
    for (int row = 1; row < height; ++row) {
        bits += "111";
    }
    bits += "000000000001000000000001";
    bits.resize((bits.size() + 7) / 8 * 8, '0');
    QByteArray bytes;
    for (std::size_t at = 0; at < bits.size(); at += 8) {
        bytes += static_cast<char>(std::bitset<8>(bits, at, 8).to_ulong());
    }
    return bytes;
}

/// The same as JBIG2: a page information segment and one region under T.6 (ITU-T T.88, 7.4).
QByteArray jbig2(int width, int height) {
    const QByteArray size = big(static_cast<quint32>(width)) + big(static_cast<quint32>(height));
    const QByteArray packed = group4(height);
    return big(0) + QByteArray::fromHex("300001") + big(19) + size + QByteArray(11, '\0') + big(1) +
           QByteArray::fromHex("260001") + big(static_cast<quint32>(18 + packed.size())) + size +
           QByteArray(9, '\0') + QByteArray::fromHex("01") + packed;
}

QByteArray everySampleTwice(const QByteArray &samples) {
    QByteArray wide;
    wide.reserve(2 * samples.size());
    for (const char sample : samples) {
        wide.append(2, sample);
    }
    return wide;
}

/// The rows as PNG rows without prediction.
QByteArray unpredictedRows(const QByteArray &samples, qsizetype rowBytes) {
    QByteArray rows;
    for (qsizetype at = 0; at < samples.size(); at += rowBytes) {
        rows += '\0' + samples.mid(at, rowBytes);
    }
    return rows;
}

const QByteArray kDrawn("q 288 0 0 216 50 20 cm /Im0 Do Q");

} // namespace

/// What becomes of images of each kind.
class CompressionImagesTest : public QObject, protected CompressionCase {
    Q_OBJECT

    /// The picture as JPEG 2000, made by OpenJPEG's own program.
    QByteArray jpeg2000(const QImage &image) const {
        const QString from = m_folder->filePath(u"photo.png"_s);
        const QString to = m_folder->filePath(u"photo.jp2"_s);
        if (!image.save(from) ||
            runTool(u"opj_compress"_s, {u"-i"_s, from, u"-o"_s, to}).exitCode != 0) {
            return {};
        }
        return readFile(to);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void photosOfEachKindAreReduced_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("color");
        const QByteArray rgb = samplesOf(photo(1200, 900), 3);
        const QByteArray flateRgb(
            "/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode ");
        QTest::newRow("16 bits")
            << QByteArray("/ColorSpace /DeviceRGB /BitsPerComponent 16 /Filter /FlateDecode")
            << flate(everySampleTwice(rgb)) << u"rgb"_s;
        QTest::newRow("predictor")
            << flateRgb + "/DecodeParms << /Predictor 15 /Colors 3 /Columns 1200 >>"
            << flate(unpredictedRows(rgb, 3600)) << u"rgb"_s;
        QTest::newRow("jpeg in flate")
            << QByteArray("/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter [/FlateDecode "
                          "/DCTDecode]")
            << flate(jpeg(photo(1200, 900))) << u"rgb"_s;
        QTest::newRow("icc") << QByteArray("/ColorSpace [/ICCBased 8 0 R] /BitsPerComponent 8 "
                                           "/Filter /DCTDecode")
                             << jpeg(photo(1200, 900)) << u"icc"_s;
        QTest::newRow("negative") << kJpegRgb + " /Decode [1 0 1 0 1 0]" << jpeg(photo(1200, 900))
                                  << u"rgb"_s;
    }

    void photosOfEachKindAreReduced() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        QFETCH(const QString, color);
        QVERIFY(photoPage(kDrawn)
                    .stream(5, imageKeys(1200, 900, keys), data)
                    .stream(8, "/N 3", QColorSpace(QColorSpace::AdobeRgb).iccProfile())
                    .write(m_path));
        isHalved(compressed(), color);
    }

    void inksOfAJpegStayInks_data() {
        QTest::addColumn<CmykForm>("form");
        QTest::addColumn<QByteArray>("decode");
        QTest::newRow("plain") << CmykForm::Plain << QByteArray();
        const QByteArray inverted("/Decode [1 0 1 0 1 0 1 0]");
        QTest::newRow("Adobe's CMYK") << CmykForm::AdobeCmyk << inverted;
        QTest::newRow("Adobe's YCCK") << CmykForm::AdobeYcck << inverted;
    }

    void inksOfAJpegStayInks() {
        QFETCH(const CmykForm, form);
        QFETCH(const QByteArray, decode);
        QVERIFY(photoPage(kDrawn)
                    .stream(5,
                            imageKeys(1200, 900,
                                      "/ColorSpace /DeviceCMYK /BitsPerComponent 8 /Filter "
                                      "/DCTDecode " +
                                          decode),
                            cmykJpeg(photo(1200, 900), form))
                    .write(m_path));
        const QString copy = compressed();
        isHalved(copy, u"cmyk"_s);
        QVERIFY(difference(PdfProbe(m_path).renderWithMutool(1, 100),
                           PdfProbe(copy).renderWithMutool(1, 100)) < 5);
    }

    void jpeg2000IsReduced_data() {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<QByteArray>("space");
        QTest::addColumn<QString>("color");
        QTest::newRow("rgb") << QImage::Format_RGB888 << QByteArray("/ColorSpace /DeviceRGB")
                             << u"rgb"_s;
        QTest::newRow("its own colours") << QImage::Format_RGB888 << QByteArray() << u"rgb"_s;
        QTest::newRow("grey") << QImage::Format_Grayscale8 << QByteArray("/ColorSpace /DeviceGray")
                              << u"gray"_s;
    }

    void jpeg2000IsReduced() {
        QFETCH(const QImage::Format, format);
        QFETCH(const QByteArray, space);
        QFETCH(const QString, color);
        const QByteArray data = jpeg2000(photo(1200, 900, format));
        QVERIFY(!data.isEmpty());
        QVERIFY(photoPage(kDrawn)
                    .stream(5, imageKeys(1200, 900, space + " /Filter /JPXDecode"), data)
                    .write(m_path));
        const QString copy = compressed();
        const auto images = PdfProbe(copy).images();
        QCOMPARE(images.size(), 1);
        QCOMPARE(images[0][kWidthColumn], u"600"_s);
        QCOMPARE(images[0][kColorColumn], color);
        QCOMPARE(images[0][kEncodingColumn], u"jpeg"_s);
        QVERIFY(changeOf(copy) < 5);
    }

    void coloursOfJpeg2000StayInPdfA() {
        const QByteArray data = jpeg2000(photo(1200, 900));
        QVERIFY(!data.isEmpty());
        QVERIFY(claiming(photoPage(kDrawn), "2")
                    .stream(5, imageKeys(1200, 900, "/Filter /JPXDecode"), data)
                    .write(m_path));
        const CompressionOutcome outcome = run(1);
        QVERIFY(outcome.error.isEmpty());
        QCOMPARE(outcome.imagesKept.size(), 1);
        QCOMPARE(outcome.imagesKept[0].reason, u"colours that PDF/A asks for"_s);
    }

    void damagedJpeg2000Stays() {
        const QByteArray data = jpeg2000(photo(1200, 900));
        const QByteArray half = data.first(data.size() / 2);
        QVERIFY(
            photoPage(kDrawn)
                .stream(5, imageKeys(1200, 900, "/ColorSpace /DeviceRGB /Filter /JPXDecode"), half)
                .write(m_path));
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QVERIFY(readFile(copy).contains(half));
    }

    void scannedPagesStayByteForByteBesidePhotosThatShrink() {
        const QByteArray fax = group4(900);
        const QByteArray jbig = jbig2(1200, 900);
        QVERIFY(photoPage("q 100 0 0 75 0 0 cm /C Do 1 0 0 1 1 0 cm /J Do Q " + kDrawn)
                    .object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 "
                               "R /Resources << /XObject << /C 8 0 R /J 9 0 R /Im0 5 0 R >> >> >>")
                    .stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)))
                    .stream(8,
                            imageKeys(1200, 900,
                                      "/ColorSpace /DeviceGray /BitsPerComponent 1 /Filter "
                                      "/CCITTFaxDecode /DecodeParms << /K -1 /Columns 1200 /Rows "
                                      "900 >>"),
                            fax)
                    .stream(9,
                            imageKeys(1200, 900,
                                      "/ColorSpace /DeviceGray /BitsPerComponent 1 /Filter "
                                      "/JBIG2Decode"),
                            jbig)
                    .write(m_path));
        qint64 before = QFileInfo(m_path).size();
        for (int index = 1; index <= 3; ++index) {
            const CompressionOutcome outcome = run(index);
            QCOMPARE(outcome.error, QString());
            QCOMPARE(outcome.imagesReduced, 1);
            QCOMPARE(outcome.imagesKept.size(), std::size_t(2));
            QCOMPARE(outcome.imagesKept[0].reason, u"bilevel"_s);
            QCOMPARE(outcome.imagesKept[1].reason, u"bilevel"_s);
            const QByteArray copy = readFile(outcome.convertInfo->tempFilePathName);
            QVERIFY(copy.contains("stream\n" + fax + "\nendstream"));
            QVERIFY(copy.contains("stream\n" + jbig + "\nendstream"));
            QVERIFY(changeOf(outcome.convertInfo->tempFilePathName) < 8);
            QVERIFY(outcome.bytesAfter < before);
            before = outcome.bytesAfter;
        }
    }

    void aCoarserSoftMaskKeepsItsPixels() {
        const QByteArray mask = opacity(600, 450);
        writeMaskedPage("0 0 1 rg 0 0 400 300 re f " + kDrawn, 600, 450, mask);
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        QVERIFY(readFile(copy).contains(mask));
        QVERIFY(changeOf(copy) < 5);
    }

    void aSoftMaskSharedByTwoImagesFollowsTheLarger() {
        const QByteArray masked = imageKeys(1200, 900, kJpegRgb + " /SMask 8 0 R");
        QVERIFY(photoPage("q 288 0 0 216 0 0 cm /Im0 Do Q q 72 0 0 54 300 0 cm /Fm0 Do Q")
                    .stream(5, masked, jpeg(photo(1200, 900)))
                    .stream(6, masked, jpeg(photo(1200, 900), 80))
                    .stream(8, imageKeys(1200, 900, kFlateGrey), opacity(1200, 900))
                    .write(m_path));
        const QString copy = compressed();
        QStringList widths;
        for (const QStringList &image : PdfProbe(copy).images()) {
            widths += image[2] + image[kWidthColumn];
        }
        widths.sort();
        widths.removeDuplicates();
        QCOMPARE(widths, (QStringList{u"image150"_s, u"image600"_s, u"smask600"_s}));
        QVERIFY(changeOf(copy) < 5);
    }
};

FOLIOFORGE_TEST(CompressionImagesTest)
#include "CompressionImagesTest.moc"
