// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "support/CmykJpeg.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QRandomGenerator>

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
        // Newer ones say "0 (0)".
        QCOMPARE(QString::fromUtf8(run.err).section(u' ', 0, 0).trimmed(), u"0"_s);
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
        QImage noise(600, 900, QImage::Format_RGB32);
        auto *const pixels = reinterpret_cast<quint32 *>(noise.bits());
        QRandomGenerator(5).generate(pixels, pixels + qsizetype{600} * 900);
        QVERIFY(pageOf(600, kJpegRgb, jpeg(noise, 10)).write(m_path)); // Grey at a higher quality.
        CompressionOutcome outcome;
        const QString copy = greyCopy(outcome);
        QCOMPARE(outcome.imagesReduced, 1);
        QVERIFY2(QFileInfo(copy).size() > QFileInfo(m_path).size(),
                 QByteArray::number(QFileInfo(copy).size()) + ' ' +
                     QByteArray::number(QFileInfo(m_path).size()));
        QVERIFY(isGrey(PdfProbe(copy).render(1, 100)));
    }

    /// A picture of two colours, as a GIF with a transparent one becomes.
    static QByteArray twoColours(const QByteArray &base) {
        return "/ColorSpace [/Indexed " + base + "] /BitsPerComponent 1 /Filter /FlateDecode";
    }

    void aColourThatIsMaskedStaysMasked() {
        const QByteArray bits = QByteArray("\x0f").repeated(150 * 900);
        const QByteArray keys = twoColours("/DeviceRGB 1 <ff2010 1020ff>") + " /Mask [1 1]";
        QVERIFY(pageOf(1200, keys, flate(bits)).write(m_path));
        CompressionOutcome outcome;
        const QImage page = PdfProbe(greyCopy(outcome)).render(1, 100);
        QVERIFY(isGrey(page));
        const QImage before = PdfProbe(m_path).render(1, 100);
        QVERIFY2(difference(page, before) < 9, QByteArray::number(difference(page, before)));
    }

    void twoColoursThatCannotBecomeGreyAreNamed() {
        const QByteArray bits = QByteArray("\x0f").repeated(150 * 900);
        const QByteArray keys = twoColours("[/Lab << /WhitePoint [0.9505 1 1.089] /Range [-100 100 "
                                           "-100 100] >>] 1 <80ff00 8000ff>");
        QVERIFY(pageOf(1200, keys, flate(bits)).write(m_path));
        CompressionOutcome outcome;
        greyCopy(outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QCOMPARE(outcome.imagesKept.size(), std::size_t{1});
        QCOMPARE(outcome.imagesKept.front().reason, u"an unusual colour space"_s);
    }

    void aPictureThatIsBlendedWithItsOpacityStaysAsItIs() {
        const QByteArray keys = "/ColorSpace [/Indexed /DeviceRGB 5 " + kPalette +
                                "] /BitsPerComponent 4 /Filter /FlateDecode /SMask 8 0 R";
        QVERIFY(
            pageOf(600, keys, flate(bars(600, false)))
                .stream(8, imageKeys(600, 900, kFlateGrey) + " /Matte [1 0 0]", opacity(600, 900))
                .write(m_path));
        CompressionOutcome outcome;
        const QString copy = greyCopy(outcome);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.imagesReduced, 0);
        QStringList reasons;
        for (const KeptImage &image : outcome.imagesKept) {
            reasons += image.reason;
        }
        reasons.sort();
        QCOMPARE(reasons,
                 QStringList({u"blended into its image"_s, u"blended with its soft mask"_s}));
        QCOMPARE(PdfProbe(copy).render(1, 100), PdfProbe(m_path).render(1, 100));
    }

    void withoutTheWishTheyKeepTheirColours() {
        QVERIFY(pageOf(1200, kJpegRgb, jpeg(photo(1200, 900))).write(m_path));
        QVERIFY(!isGrey(PdfProbe(compressed()).render(1, 100)));
    }
};

FOLIOFORGE_TEST(GreyPicturesTest)
#include "GreyPicturesTest.moc"
