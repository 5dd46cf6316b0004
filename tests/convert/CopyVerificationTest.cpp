// SPDX-License-Identifier: Apache-2.0

#include "compress/CompressionPass.h"
#include "convert/Verifying.h"
#include "support/CmykJpeg.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kDrawn("q 288 0 0 216 50 20 cm /Im0 Do Q");
const QByteArray kBars = QByteArray("\x0f").repeated(150 * 900);
const QString kOtherParts =
    u"Page 1 of the smaller PDF is not that of the PDF: its fonts or pictures are not those of the "
    "source"_s;

/// A page with a photo in JPEG of this quality and whatever `keys` adds to it; a stencil is at hand
/// as object 8.
PdfFixture photoOf(int quality, const QByteArray &keys) {
    return photoPage(kDrawn)
        .stream(5, imageKeys(1200, 900, "/Filter /DCTDecode /BitsPerComponent 8 " + keys),
                jpeg(photo(1200, 900), quality))
        .stream(8, imageKeys(1200, 900, "/ImageMask true /BitsPerComponent 1"), kBars);
}

/// Two pages with a note on the first.
PdfFixture twoPages() {
    return PdfFixture()
        .object(1, kCatalog)
        .pages(4, 2)
        .object(9, "<< /Type /Annot /Subtype /Text /Rect [1 1 9 9] /Contents (note) >>")
        .object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font << /F "
                   "3 0 R >> >> /Contents 6 0 R /Annots [9 0 R] >>");
}

} // namespace

/// The smaller copy of a PDF that is held against it.
class CopyVerificationTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    ConversionOptions m_options;

    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    CompressionOutcome smaller(const QString &pdf) const {
        CompressionOptions options{inSource(u"resources/filters/150m.qfilter"_s), m_folder->path()};
        options.grey = m_options.compressGrey;
        return compress(pdf, options);
    }

    QString fault(const PdfFixture &original, const PdfFixture &copy) const {
        if (!original.write(path("one.pdf")) || !copy.write(path("copy.pdf"))) {
            return u"cannot be written"_s;
        }
        return verifyCopy(path("one.pdf"), path("copy.pdf"), m_options, {});
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_options = {};
        m_options.verify = true;
    }

    void whatThePassMakesOfPicturesIsAlike_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<bool>("grey");
        const QImage image = photo(1200, 900);
        const QByteArray rgb = flate(samplesOf(image, 3));
        const QByteArray samples("/BitsPerComponent 8 /Filter /FlateDecode /ColorSpace ");
        const QByteArray inks("/ColorSpace /DeviceCMYK /BitsPerComponent 8 /Filter /DCTDecode");
        QByteArray colors;
        for (int i = 0; i < 256; ++i) {
            colors += QByteArray{3, static_cast<char>(i)}.replace(1, 1, "\x40").toHex();
        }
        const QByteArray palette(samples + "[/Indexed /DeviceRGB 255 <" + colors + ">]");
        const QImage places = photo(1200, 900, QImage::Format_Grayscale8);
        for (const bool grey : {false, true}) {
            const QByteArray suffix = grey ? ", grey" : "";
            QTest::newRow("JPEG" + suffix) << kJpegRgb << jpeg(image) << grey;
            QTest::newRow("samples" + suffix) << samples + "/DeviceRGB" << rgb << grey;
            QTest::newRow("calibrated" + suffix)
                << samples + "[/CalRGB << /WhitePoint [0.9505 1 1.089] >>]" << rgb << grey;
            QTest::newRow("four inks" + suffix) << inks << cmykJpeg(image, CmykForm::Plain) << grey;
            QTest::newRow("four inks, inverted" + suffix)
                << inks + " /Decode [1 0 1 0 1 0 1 0]" << cmykJpeg(image, CmykForm::AdobeCmyk)
                << grey;
            QTest::newRow("palette" + suffix) << palette << flate(samplesOf(places, 1)) << grey;
            QTest::newRow("bits" + suffix)
                << QByteArray("/ColorSpace /DeviceGray /BitsPerComponent 1") << kBars << grey;
            QTest::newRow("stencil" + suffix)
                << QByteArray("/ImageMask true /BitsPerComponent 1") << kBars << grey;
        }
    }

    void whatThePassMakesOfPicturesIsAlike() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        QFETCH(const bool, grey);
        m_options.compressGrey = grey;
        const QString pdf = path("one.pdf");
        QVERIFY(photoPage(kDrawn).stream(5, imageKeys(1200, 900, keys), data).write(pdf));
        const CompressionOutcome outcome = smaller(pdf);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.imagesReduced, 1);
        QCOMPARE(verifyCopy(pdf, outcome.convertInfo->tempFilePathName, m_options, {}), QString());
    }

    void aPictureThatIsReadOtherwiseIsFound_data() {
        QTest::addColumn<QByteArray>("original");
        QTest::addColumn<QByteArray>("copy");
        QTest::addColumn<QString>("fault");
        const QByteArray rgb("/ColorSpace /DeviceRGB ");
        QTest::newRow("the same") << rgb + "/Mask 8 0 R" << rgb + "/Mask 8 0 R" << QString();
        QTest::newRow("its own mask") << rgb + "/SMask 5 0 R" << rgb + "/SMask 5 0 R" << QString();
        QTest::newRow("no mask") << rgb + "/Mask 8 0 R" << rgb << kOtherParts;
        QTest::newRow("a soft mask more") << rgb << rgb + "/SMask 8 0 R" << kOtherParts;
        QTest::newRow("no intent") << rgb + "/Intent /Perceptual" << rgb << kOtherParts;
        QTest::newRow("no layer") << rgb + "/OC << /Type /OCG /Name (x) >>" << rgb << kOtherParts;
        QTest::newRow("other range") << rgb << rgb + "/Decode [0 0.5 0 1 0 1]" << kOtherParts;
        QTest::newRow("other colours")
            << rgb << QByteArray("/ColorSpace [/Lab << /WhitePoint [1 1 1] >>]") << kOtherParts;
    }

    void aPictureThatIsReadOtherwiseIsFound() {
        QFETCH(const QByteArray, original);
        QFETCH(const QByteArray, copy);
        QFETCH(const QString, fault);
        QCOMPARE(this->fault(photoOf(92, original), photoOf(60, copy)), fault);
    }

    void greyIsAFaultWhereItIsNotAskedFor() {
        const QByteArray grey = "/ColorSpace /DeviceGray /BitsPerComponent 8 /Filter /DCTDecode";
        const PdfFixture copy = photoOf(92, {}).stream(
            5, imageKeys(1200, 900, grey), jpeg(photo(1200, 900, QImage::Format_Grayscale8)));
        const PdfFixture original = photoOf(92, "/ColorSpace /DeviceRGB");
        QCOMPARE(fault(original, copy), kOtherParts);
        m_options.compressGrey = true;
        QCOMPARE(fault(original, copy), QString());
    }

    void anotherPageIsFound_data() {
        QTest::addColumn<int>("object");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("fault");
        const auto other = [](const char *what) {
            return u"Page 1 of the smaller PDF is not that of the PDF: "_s +
                   QString::fromUtf8(what) + u" of the source"_s;
        };
        QTest::newRow("nothing") << 1 << kCatalog << QString();
        QTest::newRow("a letter") << 6
                                  << QByteArray("<< /Length 39 >>\nstream\nBT /F 20 Tf 20 40 Td "
                                                "(Pago 1) Tj ET     \nendstream")
                                  << other("its contents are not those");
        QTest::newRow("a note")
            << 9
            << QByteArray(
                   "<< /Type /Annot /Subtype /Text /Rect [1 1 9 9] /Contents (other note) >>")
            << other("its links, notes or fields are not those");
        QTest::newRow("a font") << 3
                                << QByteArray("<< /Type /Font /Subtype /Type1 /BaseFont /Courier "
                                              ">>")
                                << other("its fonts or pictures are not those");
        QTest::newRow("a page less") << 2 << QByteArray("<< /Type /Pages /Count 1 /Kids [4 0 R] >>")
                                     << u"The PDF has 1 pages instead of 2"_s;
    }

    void anotherPageIsFound() {
        QFETCH(const int, object);
        QFETCH(const QByteArray, body);
        QFETCH(const QString, fault);
        QCOMPARE(this->fault(twoPages(), twoPages().object(object, body)), fault);
    }
};

FOLIOFORGE_TEST(CopyVerificationTest)
#include "CopyVerificationTest.moc"
