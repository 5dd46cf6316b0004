// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "support/CmykJpeg.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kFlateRgb("/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode");

/// `width` x 900 pixels in bars of six colours: as places among the colours, or as the colours.
QByteArray bars(int width, bool asColors) {
    const QList<QByteArray> colors{"\xff\x20\x10", "\x10\xff\x20", "\x20\x10\xff",
                                   "\xff\xff\x10", "\x10\x20\x20", "\xff\x80\x40"};
    QByteArray row;
    for (int x = 0; x < width; ++x) {
        const int place = x / 200 % 6;
        row += asColors ? colors[place] : QByteArray(1, static_cast<char>(place * 17));
    }
    return row.repeated(900);
}

const QByteArray kPalette("<ff2010 10ff20 2010ff ffff10 102020 ff8040>");

bool isGrey(const QImage &page) {
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QRgb color = page.pixel(x, y);
            if (std::max({qRed(color), qGreen(color), qBlue(color)}) -
                    std::min({qRed(color), qGreen(color), qBlue(color)}) >
                1) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

/// Pictures in colour that become grey.
class GreyPicturesTest : public QObject, CompressionCase {
    Q_OBJECT

    QString greyCopy(CompressionOutcome &outcome) const {
        CompressionOptions options = optionsOf(1);
        options.grey = true;
        outcome = compress(m_path, options);
        return kept(outcome.convertInfo);
    }

    static PdfFixture pageOf(int width, const QByteArray &keys, const QByteArray &data) {
        return photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
            .stream(5, imageKeys(width, 900, keys), data);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void theyLookAsBrightAsTheyDid_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("encoding");
        const QImage image = photo(1200, 900);
        const QByteArray rgb = samplesOf(image, 3);
        QByteArray negative = rgb;
        for (char &byte : negative) {
            byte = static_cast<char>(~byte);
        }
        const QByteArray cmyk("/ColorSpace /DeviceCMYK /BitsPerComponent 8 /Filter /DCTDecode");
        const QByteArray adobe = cmyk + " /Decode [1 0 1 0 1 0 1 0]";
        QTest::newRow("JPEG") << kJpegRgb << jpeg(image) << u"jpeg"_s;
        QTest::newRow("JPEG of a low quality") << kJpegRgb << jpeg(image, 30) << u"jpeg"_s;
        QTest::newRow("samples") << kFlateRgb << flate(rgb) << u"jpeg"_s;
        QTest::newRow("negative") << kFlateRgb + " /Decode [1 0 1 0 1 0]" << flate(negative)
                                  << u"jpeg"_s;
        QTest::newRow("four inks") << cmyk << cmykJpeg(image, CmykForm::Plain) << u"jpeg"_s;
        QTest::newRow("four inks, inverted")
            << adobe << cmykJpeg(image, CmykForm::AdobeCmyk) << u"jpeg"_s;
        QTest::newRow("four inks in brightness and colour")
            << adobe << cmykJpeg(image, CmykForm::AdobeYcck) << u"jpeg"_s;
        QTest::newRow("drawing") << kFlateRgb << flate(bars(1200, true)) << u"image"_s;
        QTest::newRow("few colours") << "/ColorSpace [/Indexed /DeviceRGB 5 " + kPalette +
                                            "] /BitsPerComponent 4 /Filter /FlateDecode"
                                     << flate(bars(600, false)) << u"image"_s;
    }

    void theyLookAsBrightAsTheyDid() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        QFETCH(const QString, encoding);
        QVERIFY(pageOf(1200, keys, data).write(m_path));
        CompressionOutcome outcome;
        const QString copy = greyCopy(outcome);
        QCOMPARE(outcome.error, QString());
        const PdfProbe pdf(copy);
        QVERIFY(pdf.isValid());
        QCOMPARE(pdf.images()[0][kEncodingColumn], encoding);
        const PdfProbe document(m_path);
        for (const auto &[now, before] :
             {std::pair(pdf.render(1, 100), document.render(1, 100)),
              std::pair(pdf.renderWithMutool(1, 100), document.renderWithMutool(1, 100))}) {
            QVERIFY(!isGrey(before));
            QVERIFY(isGrey(now));
            const double apart = difference(now, before);
            // Readers turn inks and strong colours into light in ways of their own.
            QVERIFY2(apart < 9, QByteArray::number(apart));
        }
    }

    void imageMagickMakesTheSameGreys() {
        QVERIFY(pageOf(1200, kFlateRgb, flate(bars(1200, true))).write(m_path));
        CompressionOutcome outcome;
        const QString copy = greyCopy(outcome);
        QCOMPARE(runTool(u"pdfimages"_s, {u"-png"_s, copy, m_folder->filePath(u"new"_s)}).exitCode,
                 0);
        QCOMPARE(
            runTool(u"pdfimages"_s, {u"-png"_s, m_path, m_folder->filePath(u"old"_s)}).exitCode, 0);
        const QString wanted = m_folder->filePath(u"wanted.png"_s);
        QCOMPARE(runTool(u"convert"_s, {m_folder->filePath(u"old-000.png"_s), u"-grayscale"_s,
                                        u"Rec601Luma"_s, wanted})
                     .exitCode,
                 0);
        const ToolRun run =
            runTool(u"compare"_s, {u"-metric"_s, u"AE"_s, u"-fuzz"_s, u"0.5%"_s,
                                   m_folder->filePath(u"new-000.png"_s), wanted, u"null:"_s});
        QCOMPARE(QString::fromUtf8(run.err).trimmed(), u"0"_s);
    }

    void greyIsOfNoDeviceInPdfA() {
        QVERIFY(claiming(pageOf(1200, kJpegRgb, jpeg(photo(1200, 900))), "2").write(m_path));
        CompressionOutcome outcome;
        const QString copy = greyCopy(outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        const QByteArray json = PdfProbe(copy).json();
        QVERIFY(json.contains("/CalGray"));
        QVERIFY(!json.contains("/DeviceGray"));
    }

    void theyBecomeGreyEvenWhereNothingGetsSmaller() {
        QVERIFY(pageOf(60, kFlateRgb, flate(bars(60, true).replace('\x20', '\x21'))).write(m_path));
        CompressionOutcome outcome;
        QVERIFY(isGrey(PdfProbe(greyCopy(outcome)).render(1, 100)));
    }

    void withoutTheWishTheyKeepTheirColours() {
        QVERIFY(pageOf(1200, kJpegRgb, jpeg(photo(1200, 900))).write(m_path));
        QVERIFY(!isGrey(PdfProbe(compressed()).render(1, 100)));
    }
};

FOLIOFORGE_TEST(GreyPicturesTest)
#include "GreyPicturesTest.moc"
