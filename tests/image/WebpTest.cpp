// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// WebP files of libwebp's programs, and what becomes of them where bytes are changed.
class WebpTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void exifGivesOrientationAndDensity() {
        const ImageHeader header = readImageHeader(imageFile(u"turned.webp"_s));
        QCOMPARE(header.orientation, 6);
        QCOMPARE(header.horizontalDpi, 240.0);
        QCOMPARE(header.verticalDpi, 240.0);
        QCOMPARE(QSize(header.width, header.height), QSize(24, 16));
    }

    void exifMayBeginAsInAJpeg() {
        QByteArray bytes = bytesOf(imageFile(u"turned.webp"_s));
        const qsizetype chunk = bytes.indexOf("EXIF");
        bytes[chunk + 4] = static_cast<char>(bytes[chunk + 4] + 6);
        bytes.insert(chunk + 8, QByteArray("Exif\0\0", 6));
        QCOMPARE(readImageHeader(write(bytes)).orientation, 6);
        QCOMPARE(readImageHeader(write(bytes)).horizontalDpi, 240.0);
    }

    void profileIsThatOfTheFile() {
        const QByteArray bytes = bytesOf(imageFile(u"turned.webp"_s));
        const QByteArray profile = toPdfImage(imageFile(u"turned.webp"_s)).iccProfile;
        QCOMPARE(profile.mid(36, 4), "acsp");
        QVERIFY(bytes.contains(profile));
    }

    void greyWithAProfileOfColorStaysWithIt() {
        const QString grey = m_folder.filePath(u"grey.webp"_s);
        runTool(u"cwebp"_s, {u"-quiet"_s, u"-lossless"_s, imageFile(u"grey.png"_s), u"-o"_s, grey});
        QCOMPARE(toPdfImage(grey).color, ImageColor::Gray);
        // The chunks of the other file that stand before the picture, then this picture.
        const QByteArray turned = bytesOf(imageFile(u"turned.webp"_s));
        QByteArray both = turned.first(turned.indexOf("VP8L")) + bytesOf(grey).sliced(12);
        const PdfImage image = toPdfImage(write(both));
        QVERIFY(image.color != ImageColor::Gray);
        QVERIFY(!image.iccProfile.isEmpty());
    }

    void eachFrameIsAsAViewerShowsIt() {
        Warnings warnings;
        const auto frames = picturesOf(imageFile(u"two.webp"_s), &warnings);
        QVERIFY(warnings.empty());
        QCOMPARE(frames.size(), std::size_t(2));
        const QImage expected = QImage(imageFile(u"colour.png"_s)).convertToFormat(kRgb);
        QImage negative = expected;
        negative.invertPixels();
        QCOMPARE(decoded(frames[0]).convertToFormat(kRgb), expected);
        QCOMPARE(decoded(frames[1]).convertToFormat(kRgb), negative);
    }

    void framesKeepTheirOpacityAndTheProfileOfTheirFile() {
        const QByteArray profile = toPdfImage(imageFile(u"turned.webp"_s)).iccProfile;
        const QString icc = writeFile(m_folder.filePath(u"p.icc"_s), profile);
        const QString plain = m_folder.filePath(u"plain.webp"_s);
        const QString path = m_folder.filePath(u"profile.webp"_s);
        const QString still = imageFile(u"translucent.webp"_s);
        const QString alone = u"+100+0+0+1-b"_s; // On a clear ground, not on what was before.
        runTool(u"webpmux"_s,
                {u"-frame"_s, still, alone, u"-frame"_s, still, alone, u"-o"_s, plain});
        runTool(u"webpmux"_s, {u"-set"_s, u"icc"_s, icc, plain, u"-o"_s, path});
        const auto frames = picturesOf(path);
        QCOMPARE(frames.size(), std::size_t(2));
        const QImage source(imageFile(u"translucent.png"_s));
        for (const PdfImage &frame : frames) {
            QCOMPARE(frame.iccProfile, profile);
            QVERIFY(frame.softMask != nullptr);
            QImage opacity = decoded(*frame.softMask).convertToFormat(QImage::Format_Grayscale8);
            QVERIFY(opacity.reinterpretAsFormat(QImage::Format_Alpha8));
            QCOMPARE(opacity, source.convertToFormat(QImage::Format_Alpha8));
        }
    }

    void framesThatAreLeftOutAreCounted() {
        QCOMPARE(warningsOf(toPdfImage(imageFile(u"two.webp"_s))),
                 QStringList(u"more-pictures: 1 further frame is left out"_s));
        QCOMPARE(warningsOf(toPdfImage(imageFile(u"colour.webp"_s))), QStringList());
    }

    void rowsBeforeTheCutAreShown() {
        const QByteArray whole = largePicture();
        const PdfImage all = toPdfImage(write(whole));
        const PdfImage cut = toPdfImage(write(whole.first(whole.size() / 2)));
        QVERIFY(warningsOf(cut).join(u' ').contains(
            QRegularExpression(u"picture-damaged: .* 5. % of its rows"_s)));
        const QByteArray shown = rgbRows(cut);
        const qsizetype third = shown.size() / 3;
        QCOMPARE(shown.first(third), rgbRows(all).first(third));
    }

    void aCutThatLeavesNoRowIsRefused() {
        const QByteArray bytes = bytesOf(imageFile(u"lossy.webp"_s));
        QCOMPARE(refusalOf(write(bytes.first(60))), u"The WebP file is damaged"_s);
    }

    void aPictureOfAnotherSizeThanItsFileIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"turned.webp"_s));
        bytes[24] = 24; // One column more.
        QCOMPARE(refusalOf(write(bytes)), u"The WebP file is damaged"_s);
    }

    void anAnimationOfMoreThanMemoryBearsIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"two.webp"_s));
        bytes.replace(24, 6, QByteArray::fromHex("ff4f00ff4f00")); // 20480 x 20480
        QCOMPARE(refusalOf(write(bytes)), u"The animation is too large (20480 x 20480 pixels)"_s);
    }

    void aHeaderWithoutAPictureIsRefused() {
        QVERIFY(!refusalOf(write(QByteArray("RIFF\x04\0\0\0WEBP", 12))).isEmpty());
        QVERIFY(!refusalOf(write("no picture")).isEmpty());
    }

  private:
    static constexpr QImage::Format kRgb = QImage::Format_RGB32;

    QTemporaryDir m_folder;
    int m_files = 0;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"%1.webp"_s.arg(++m_files)), bytes);
    }

    /// A lossy picture whose rows take about as many bytes each.
    QByteArray largePicture() {
        const QString png = m_folder.filePath(u"large.png"_s);
        const QString webp = m_folder.filePath(u"large.webp"_s);
        runTool(u"convert"_s, {u"-size"_s, u"320x320"_s, u"-seed"_s, u"7"_s, u"plasma:"_s, png});
        runTool(u"cwebp"_s, {u"-quiet"_s, u"-q"_s, u"90"_s, png, u"-o"_s, webp});
        return bytesOf(webp);
    }
};

FOLIOFORGE_TEST(WebpTest)
#include "WebpTest.moc"
