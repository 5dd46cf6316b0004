// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// HEIC and AVIF files of the programs of libheif and libavif.
class HeifTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void tenBitsBecomeSixteenOfTheSameValue() {
        const PdfImage image = toPdfImage(imageFile(u"deep.avif"_s));
        QCOMPARE(image.bitsPerComponent, 16);
        const QString read = m_folder.filePath(u"deep.png"_s);
        runTool(u"avifdec"_s, {imageFile(u"deep.avif"_s), read});
        const QImage ours = decoded(image).convertToFormat(QImage::Format_RGBX64);
        const QImage theirs = QImage(read).convertToFormat(QImage::Format_RGBX64);
        QCOMPARE(ours.size(), theirs.size());
        for (int y = 0; y < ours.height(); ++y) {
            for (int x = 0; x < ours.width(); ++x) {
                const QRgba64 one = ours.pixelColor(x, y).rgba64();
                const QRgba64 other = theirs.pixelColor(x, y).rgba64();
                QVERIFY(qAbs(one.red() - other.red()) <= 1);
                QVERIFY(qAbs(one.green() - other.green()) <= 1);
                QVERIFY(qAbs(one.blue() - other.blue()) <= 1);
            }
        }
    }

    void aTurnedPictureIsStoredUpright() {
        // A quarter to the left and mirrored, as avifenc's options say.
        const QString read = m_folder.filePath(u"turned.png"_s);
        runTool(u"heif-convert"_s, {imageFile(u"turned.avif"_s), read});
        const PdfImage image = toPdfImage(imageFile(u"turned.avif"_s));
        QCOMPARE(image.header.orientation, 1);
        QCOMPARE(QSize(image.header.width, image.header.height), QSize(16, 24));
        QCOMPARE(decoded(image).convertToFormat(kRgb), QImage(read).convertToFormat(kRgb));
    }

    void exifGivesTheDensityAndNoTurn() {
        const ImageHeader header = readImageHeader(imageFile(u"turned.heic"_s));
        QCOMPARE(header.horizontalDpi, 240.0);
        QCOMPARE(header.orientation, 1); // The file's own boxes say how it lies, and EXIF does not.
        QCOMPARE(toPdfImage(imageFile(u"turned.heic"_s)).header.orientation, 1);
    }

    void profileIsThatOfTheFile() {
        const QByteArray profile = toPdfImage(imageFile(u"turned.webp"_s)).iccProfile;
        const QString icc = writeFile(m_folder.filePath(u"p.icc"_s), profile);
        const QString avif = m_folder.filePath(u"profile.avif"_s);
        runTool(u"avifenc"_s, {u"-j"_s, u"1"_s, u"--icc"_s, icc, imageFile(u"colour.png"_s), avif});
        QCOMPARE(toPdfImage(avif).iccProfile, profile);
    }

    void colorsByNumbersGetAProfile() {
        QVERIFY(toPdfImage(imageFile(u"colour.avif"_s)).iccProfile.isEmpty());
        const PdfImage image = toPdfImage(imageFile(u"wide.avif"_s)); // Display P3
        QCOMPARE(image.iccProfile.mid(36, 4), "acsp");
        QCOMPARE(decoded(image).convertToFormat(kRgb),
                 QImage(imageFile(u"colour.png"_s)).convertToFormat(kRgb));
    }

    void brightnessBeyondWhiteIsNamed() {
        QCOMPARE(warningsOf(toPdfImage(imageFile(u"bright.avif"_s))),
                 QStringList(u"colors-differ: The picture is made for HDR screens, and a PDF shows "
                             "its brightness otherwise"_s));
    }

    void movingPicturesAreNamed() {
        const QStringList left(u"more-pictures: Its moving pictures are left out"_s);
        QCOMPARE(warningsOf(toPdfImage(imageFile(u"two.avif"_s))), left);
        Warnings warnings;
        QCOMPARE(picturesOf(imageFile(u"two.avif"_s), &warnings).size(), std::size_t(1));
        QCOMPARE(warnings.size(), std::size_t(1));
    }

    void movingPicturesAloneAreNoJpeg() {
        const QByteArray bytes = QByteArray::fromHex("00000010") + "ftyphevc" + QByteArray(4, '\0');
        const QString path = writeFile(m_folder.filePath(u"moving.jpg"_s), bytes);
        const QString reason = refusalOf(path);
        QVERIFY2(reason.startsWith(u"The HEIC or AVIF file cannot be read"_s), qPrintable(reason));
    }

    void eachPictureOfAFileIsTaken() {
        const QString two = m_folder.filePath(u"two.heic"_s);
        const QString read = m_folder.filePath(u"two.png"_s);
        runTool(u"heif-enc"_s,
                {imageFile(u"colour.png"_s), imageFile(u"grey.png"_s), u"-o"_s, two});
        QCOMPARE(warningsOf(toPdfImage(two)),
                 QStringList(u"more-pictures: 1 further picture is left out"_s));
        runTool(u"heif-convert"_s, {two, read}); // Writes two-1.png and two-2.png.
        const auto pictures = picturesOf(two);
        QCOMPARE(pictures.size(), std::size_t(2));
        for (int i = 0; i < 2; ++i) {
            const QString each = m_folder.filePath(u"two-%1.png"_s.arg(i + 1));
            QCOMPARE(decoded(pictures[static_cast<size_t>(i)]).convertToFormat(kRgb),
                     QImage(each).convertToFormat(kRgb));
        }
    }

    void aSizeBeyondAllIsRefused() {
        for (const char *name : {"colour.avif", "colour.heic"}) {
            QByteArray bytes = bytesOf(imageFile(QString::fromLatin1(name)));
            for (qsizetype at = bytes.indexOf("ispe"); at >= 0;
                 at = bytes.indexOf("ispe", at + 1)) {
                bytes.replace(at + 8, 8, QByteArray::fromHex("0000753000007530"));
            }
            const QString reason =
                refusalOf(writeFile(m_folder.filePath(QString::fromLatin1(name)), bytes));
            QCOMPARE(reason, u"The image is too large (30000 x 30000 pixels)"_s);
        }
    }

    void aLargePictureInAFewBytesIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"colour.avif"_s));
        bytes.replace(bytes.indexOf("ispe") + 8, 8, QByteArray::fromHex("00003a9800003a98"));
        QCOMPARE(refusalOf(writeFile(m_folder.filePath(u"large.avif"_s), bytes)),
                 u"The file is too short for the image its header describes"_s);
    }

  private:
    static constexpr QImage::Format kRgb = QImage::Format_RGB32;

    QTemporaryDir m_folder;
};

FOLIOFORGE_TEST(HeifTest)
#include "HeifTest.moc"
