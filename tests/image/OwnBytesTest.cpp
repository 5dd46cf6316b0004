// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "FileParts.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Compressed data that a PDF can hold goes in as it is in the file.
class OwnBytesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void wholeFileGoesIn_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<ImageFilter>("filter");
        QTest::addColumn<ImageColor>("color");
        const auto add = [](const char *name, ImageFilter filter, ImageColor color) {
            QTest::newRow(name) << QString::fromLatin1(name) << filter << color;
        };
        add("photo.jpg", ImageFilter::Dct, ImageColor::Rgb);
        add("progressive.jpg", ImageFilter::Dct, ImageColor::Rgb);
        add("grey.jpg", ImageFilter::Dct, ImageColor::Gray);
        add("ink.jpg", ImageFilter::Dct, ImageColor::Cmyk);
        add("colour.jp2", ImageFilter::Jpx, ImageColor::FromJpx);
    }

    void wholeFileGoesIn() {
        QFETCH(QString, name);
        QFETCH(ImageFilter, filter);
        QFETCH(ImageColor, color);
        const PdfImage image = toPdfImage(imageFile(name));
        QCOMPARE(image.filter, filter);
        QCOMPARE(image.color, color);
        QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
        QVERIFY(image.data.isEmpty());
        QCOMPARE(dataOf(image), bytesOf(imageFile(name)));
    }

    void pngRowsGoInWithTheirPredictor() {
        for (const char *name :
             {"colour.png", "grey.png", "bilevel.png", "palette.png", "deep.png"}) {
            const PdfImage image = toPdfImage(imageFile(QString::fromLatin1(name)));
            QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
            QCOMPARE(image.predictor, 15);
            QVERIFY(bytesOf(image.source->version().path).contains("IDAT" + dataOf(image)));
        }
    }

    void oneStripOfGroup4GoesIn() {
        const PdfImage image = toPdfImage(imageFile(u"bilevel-g4.tif"_s));
        QCOMPARE(image.filter, ImageFilter::CcittFax);
        QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
        QCOMPARE(image.ccittK, -1);
        QVERIFY(!image.ccittBlackIs1);
        QCOMPARE(image.slices.size(), size_t(1));
        QVERIFY(toPdfImage(imageFile(u"bilevel-minisblack.tif"_s)).ccittBlackIs1);
    }

    void reversedBitsOfGroup4AreTurned() {
        const PdfImage turned = toPdfImage(imageFile(u"bilevel-lsb.tif"_s));
        const PdfImage plain = toPdfImage(imageFile(u"bilevel-g4.tif"_s));
        QCOMPARE(turned.data, dataOf(plain));
    }

    void manyStripsAreEncodedAgain() {
        const PdfImage image = toPdfImage(imageFile(u"bilevel-strips.tif"_s));
        QCOMPARE(image.embeddedAs, EmbeddedAs::Recompressed);
        QVERIFY(image.slices.empty());
        QCOMPARE(image.filter, ImageFilter::CcittFax);
    }

    void codestreamGetsTheBoxesOfAFile() {
        const QByteArray codestream = bytesOf(imageFile(u"codestream.jp2"_s));
        QVERIFY(codestream.startsWith("\xFF\x4F"));
        const PdfImage image = toPdfImage(imageFile(u"codestream.jp2"_s));
        QCOMPARE(image.filter, ImageFilter::Jpx);
        QVERIFY(image.data.endsWith(codestream));
        // Colour space 16 is sRGB; what another program wrote around the same picture says the
        // same.
        const QByteArray file = bytesOf(imageFile(u"colour.jp2"_s));
        const QByteArray colorBox = QByteArray("colr\1\0\0\0\0\0\x10", 11);
        QVERIFY(file.contains(colorBox));
        QVERIFY(image.data.contains(colorBox));
        const auto header = file.mid(file.indexOf("ihdr"), 18);
        QCOMPARE(image.data.mid(image.data.indexOf("ihdr"), 18), header);
    }

    void metadataStaysUnlessItIsToGo() {
        const QByteArray photo = bytesOf(imageFile(u"photo.jpg"_s));
        QCOMPARE(photo.mid(6, 5), QByteArray("JFIF\0", 5));
        const QByteArray kept = segment(0xE2, QByteArray("ICC_PROFILE\0\1\1profile", 21)) +
                                segment(0xEE, QByteArray("Adobe\0\x64\0\0\0\0\1", 12));
        const QByteArray extras = segment(0xE1, QByteArray("Exif\0\0II*\0\x8\0\0\0\0\0", 16)) +
                                  segment(0xE1, "http://ns.adobe.com/xap/1.0/") +
                                  segment(0xE0, QByteArray("JFXX\0\x13", 6)) +
                                  segment(0xE2, QByteArray("MPF\0II", 6)) +
                                  segment(0xED, "Photoshop 3.0") + segment(0xFE, "a comment");
        const QByteArray tail = "\xFF\xD8 a second picture with a place \xFF\xD9";
        const QByteArray clean = photo.first(20) + kept + photo.mid(20);
        const QByteArray file = photo.first(20) + extras + kept + photo.mid(20) + tail;
        // Also a photo so large that it is not walked through otherwise.
        const QByteArray more = segment(0xFE, QByteArray(0xFFF0, 'x')).repeated(17);
        for (const QByteArray &source : {file, photo.first(2) + more + file.mid(2)}) {
            const QString path = writeFile(m_folder.filePath(u"photo.jpg"_s), source);
            QCOMPARE(dataOf(toPdfImage(path)), source);
            QCOMPARE(dataOf(stripped(path)), clean);
        }
        // One that lacks its end marker is completed in memory.
        const QString open =
            writeFile(m_folder.filePath(u"open.jpg"_s), file.chopped(tail.size() + 2));
        QCOMPARE(dataOf(stripped(open)), clean);
    }

    void boxesOfOtherProgramsStayUnlessTheyAreToGo() {
        const QByteArray picture = bytesOf(imageFile(u"tiles.jp2"_s));
        const QByteArray boxes("\0\0\0\x0Exml <place\0\0\0\x1Buuidsixteen bytes..GPS.", 14 + 27);
        const qsizetype codes = picture.indexOf("jp2c") - 4;
        const QByteArray source = picture.first(codes) + boxes + picture.mid(codes);
        const QString path = writeFile(m_folder.filePath(u"place.jp2"_s), source);
        QCOMPARE(dataOf(toPdfImage(path)), source);
        QCOMPARE(dataOf(stripped(path)), picture);
    }

    void jpeg2000InsideAnIconIsSplit() {
        const PdfImage image = toPdfImage(imageFile(u"jp2.icns"_s));
        QCOMPARE(image.filter, ImageFilter::Flate);
        QVERIFY(image.softMask != nullptr);
    }

  private:
    QTemporaryDir m_folder;

    static PdfImage stripped(const QString &path) {
        return toPdfImage(path, SystemCalls::system(), SourceMetadata::Strip);
    }
};

FOLIOFORGE_TEST(OwnBytesTest)
#include "OwnBytesTest.moc"
