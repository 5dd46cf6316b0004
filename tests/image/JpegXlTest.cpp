// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "FileParts.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A photo with this EXIF block.
QByteArray jpegOf(const QByteArray &exif) {
    return bytesOf(imageFile(u"photo.jpg"_s))
        .insert(2, segment(0xE1, QByteArray("Exif\0\0", 6) + exif));
}

/// 240 pixels per inch, turned to the right.
QByteArray turnedExif() {
    return QByteArray::fromHex("4d4d002a00000008"
                               "0003"
                               "0112000300000001"
                               "00060000"
                               "011a000500000001"
                               "00000032"
                               "011b000500000001"
                               "00000032"
                               "00000000"
                               "000000f000000001");
}

} // namespace

/// JPEG XL files of libjxl's programs.
class JpegXlTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aJpegBecomesItselfAgain() {
        const PdfImage image = toPdfImage(imageFile(u"photo.jxl"_s));
        QCOMPARE(image.filter, ImageFilter::Dct);
        QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
        QCOMPARE(image.data, bytesOf(imageFile(u"photo.jpg"_s)));
        QVERIFY(image.slices.empty());
        const auto all = picturesOf(imageFile(u"photo.jxl"_s));
        QCOMPARE(all.size(), std::size_t(1));
        QCOMPARE(all.front().data, image.data);
    }

    void theJpegsOrientationAndDensityCount() {
        const QString jxl = fromJpeg(jpegOf(turnedExif()));
        const PdfImage image = toPdfImage(jxl);
        QCOMPARE(image.filter, ImageFilter::Dct);
        QCOMPARE(image.header.orientation, 6);
        QCOMPARE(image.header.horizontalDpi, 240.0);
        QCOMPARE(readImageHeader(jxl).sizeInPoints(), image.header.sizeInPoints());
    }

    void theJpegsMetadataAreLeftOutWhereThatIsAskedFor() {
        const QByteArray jpeg = jpegOf(turnedExif());
        const QString jxl = fromJpeg(jpeg);
        QCOMPARE(toPdfImage(jxl).data, jpeg);
        const PdfImage stripped = toPdfImage(jxl, SystemCalls::system(), SourceMetadata::Strip);
        QCOMPARE(stripped.data, bytesOf(imageFile(u"photo.jpg"_s)));
        forEachPicture(jxl, SystemCalls::system(), SourceMetadata::Strip,
                       [&](const PdfImage &image) { QCOMPARE(image.data, stripped.data); });
    }

    void aTurnedPictureIsStoredUpright() {
        const QString read = m_folder.filePath(u"turned.png"_s);
        runTool(u"djxl"_s, {imageFile(u"turned.jxl"_s), read});
        const PdfImage image = toPdfImage(imageFile(u"turned.jxl"_s));
        QCOMPARE(image.header.orientation, 1);
        QCOMPARE(QSize(image.width, image.height), QSize(16, 24));
        QImage expected(read);
        expected.setColorSpace({}); // It is sRGB, of which our PNG says nothing.
        QCOMPARE(decoded(image).convertToFormat(kRgb), expected.convertToFormat(kRgb));
    }

    void exifGivesTheDensity() {
        const QByteArray codestream = bytesOf(imageFile(u"colour.jxl"_s));
        QVERIFY(codestream.startsWith("\xFF\x0A"));
        const QByteArray start =
            box("JXL ", "\r\n\x87\n") + box("ftyp", QByteArray("jxl \0\0\0\0jxl ", 12));
        const QByteArray exif = box("Exif", QByteArray(4, '\0') + turnedExif());
        const QByteArray large =
            box("Exif", QByteArray(4, '\0') + turnedExif() + QByteArray(100'000, 'n'));
        for (const QByteArray &bytes :
             {start + exif + box("jxlc", codestream), start + large + box("jxlc", codestream),
              start + box("jxlc", codestream) + exif}) {
            const ImageHeader header = readImageHeader(write(bytes));
            QCOMPARE(header.horizontalDpi, 240.0);
            QCOMPARE(header.orientation, 1); // The picture itself says how it lies.
        }
    }

    void colorsOfOtherScreensKeepTheirMeaning() {
        QVERIFY(toPdfImage(imageFile(u"colour.jxl"_s)).iccProfile.isEmpty());
        const QByteArray profile = toPdfImage(imageFile(u"wide.avif"_s)).iccProfile;
        const QString png = m_folder.filePath(u"wide.png"_s);
        const QString icc = writeFile(m_folder.filePath(u"wide.icc"_s), profile);
        runTool(u"convert"_s, {imageFile(u"colour.png"_s), u"-profile"_s, icc, png});
        const QString jxl = m_folder.filePath(u"wide.jxl"_s);
        runTool(u"cjxl"_s, {u"-d"_s, u"0"_s, png, jxl});
        QCOMPARE(toPdfImage(jxl).iccProfile.mid(36, 4), "acsp");
    }

    void eachFrameIsAsAViewerShowsIt() {
        const auto frames = picturesOf(imageFile(u"two.jxl"_s));
        QCOMPARE(frames.size(), std::size_t(2));
        const QImage expected = QImage(imageFile(u"colour.png"_s)).convertToFormat(kRgb);
        QImage negative = expected;
        negative.invertPixels();
        QCOMPARE(decoded(frames[0]).convertToFormat(kRgb), expected);
        QCOMPARE(decoded(frames[1]).convertToFormat(kRgb), negative);
        QCOMPARE(warningsOf(toPdfImage(imageFile(u"two.jxl"_s))),
                 QStringList(u"more-pictures: 1 further frame is left out"_s));
    }

    void sixteenBitsOfOpacityStay() {
        const QString jxl = m_folder.filePath(u"deep.jxl"_s);
        runTool(u"cjxl"_s, {u"-d"_s, u"0"_s, imageFile(u"translucent-deep.png"_s), jxl});
        const PdfImage image = toPdfImage(jxl);
        const PdfImage expected = toPdfImage(imageFile(u"translucent-deep.png"_s));
        QCOMPARE(image.bitsPerComponent, 16);
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(decoded(*image.softMask), decoded(*expected.softMask));
    }

    void aCutPictureIsShownAsFarAsItGoes() {
        const QString png = m_folder.filePath(u"large.png"_s);
        const QString jxl = m_folder.filePath(u"large.jxl"_s);
        runTool(u"convert"_s, {u"-size"_s, u"512x512"_s, u"-seed"_s, u"7"_s, u"plasma:"_s, png});
        runTool(u"cjxl"_s, {u"-d"_s, u"0"_s, u"-e"_s, u"3"_s, png, jxl});
        const QByteArray whole = bytesOf(jxl);
        const PdfImage cut = toPdfImage(write(whole.first(whole.size() * 6 / 10)));
        QCOMPARE(warningsOf(cut),
                 QStringList(u"picture-damaged: The picture is cut off: parts of it could not be "
                             "read"_s));
        const QImage shown = decoded(cut).convertToFormat(kRgb);
        const QImage expected = decoded(toPdfImage(jxl)).convertToFormat(kRgb);
        QCOMPARE(shown.copy(0, 0, 200, 200), expected.copy(0, 0, 200, 200));
        QVERIFY(shown.copy(300, 300, 200, 200) != expected.copy(300, 300, 200, 200));
    }

    void aFileCutInItsHeaderIsRefused() {
        const QByteArray bytes = bytesOf(imageFile(u"colour.jxl"_s));
        QCOMPARE(refusalOf(write(bytes.first(8))), u"The JPEG XL file is damaged"_s);
    }

  private:
    static constexpr QImage::Format kRgb = QImage::Format_RGB32;

    QTemporaryDir m_folder;
    int m_files = 0;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"%1.jxl"_s.arg(++m_files)), bytes);
    }

    QString fromJpeg(const QByteArray &jpeg) {
        const QString source = writeFile(m_folder.filePath(u"%1.jpg"_s.arg(++m_files)), jpeg);
        QString jxl = m_folder.filePath(u"%1.jxl"_s.arg(m_files));
        runTool(u"cjxl"_s, {source, jxl});
        return jxl;
    }
};

FOLIOFORGE_TEST(JpegXlTest)
#include "JpegXlTest.moc"
