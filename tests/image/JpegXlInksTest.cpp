// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "WrittenJpegXl.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include "error/Error.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QString kRefused = u"The JPEG XL file stores inks, which cannot be read"_s;

/// A sample of the ink `channel` at a pixel: 255 is all of it.
int inkAt(int x, int y, int channel) {
    return (3 * x + 5 * y + 60 * channel) % 256;
}

/// `channels` of a picture from the ink `first` on, as light.
QByteArray light(int side, int first, int channels) {
    QByteArray samples;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            for (int channel = first; channel < first + channels; ++channel) {
                samples += static_cast<char>(255 - inkAt(x, y, channel));
            }
        }
    }
    return samples;
}

/// Cyan, magenta, yellow and black, with the profile of a file of such inks.
JpegXlPicture fourInks(int side) {
    return {.width = side,
            .height = side,
            .profile = toPdfImage(imageFile(u"ink.jxl"_s)).iccProfile,
            .colors = light(side, 0, 3),
            .blacks = {light(side, 3, 1)}};
}

} // namespace

/// JPEG XL files of four inks, written by libjxl's encoder.
class JpegXlInksTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void inksAreThoseThatWereStored() {
        const PdfImage image = toPdfImage(imageFile(u"ink.jxl"_s));
        QCOMPARE(image.color, ImageColor::Cmyk);
        QCOMPARE(image.iccProfile.mid(16, 4), "CMYK");
        // The rows of a TIFF of the same inks, which the file was made of.
        QCOMPARE(unzipped(image.data), unzipped(toPdfImage(imageFile(u"ink.tif"_s)).data));
    }

    void eachInkStandsInItsPlace() {
        const PdfImage image = toPdfImage(write(jpegXlOf(fourInks(40))));
        QCOMPARE(image.color, ImageColor::Cmyk);
        QVERIFY(image.decode.empty());
        QVERIFY(image.softMask == nullptr);
        requireInks(image, 40);
    }

    void inksKeepTheirOpacity() {
        JpegXlPicture picture = fourInks(40);
        picture.opacity = light(40, 4, 1);
        const PdfImage image = toPdfImage(write(jpegXlOf(picture)));
        requireInks(image, 40);
        QVERIFY(image.softMask != nullptr);
        const QImage opacity = decoded(*image.softMask).convertToFormat(QImage::Format_Grayscale8);
        for (int y = 0; y < 40; ++y) {
            QCOMPARE(QByteArrayView(opacity.constScanLine(y), 40),
                     QByteArrayView(picture.opacity).sliced(qsizetype{40} * y, 40));
        }
    }

    void inksThatWouldBeMixedOrLostAreRefused_data() {
        QTest::addColumn<JpegXlPicture>("picture");
        JpegXlPicture mixed = fourInks(16);
        mixed.profile.clear();
        mixed.asStored = false;
        mixed.distance = 1;
        QTest::newRow("stored as light") << mixed;
        JpegXlPicture more = fourInks(16);
        more.blacks += light(16, 4, 1);
        QTest::newRow("a second black") << more;
        JpegXlPicture grey = fourInks(16);
        grey.profile.clear();
        grey.colors = light(16, 0, 1);
        QTest::newRow("grey and a black") << grey;
    }
    void inksThatWouldBeMixedOrLostAreRefused() {
        QFETCH(const JpegXlPicture, picture);
        const QByteArray bytes = jpegXlOf(picture);
        QVERIFY(!bytes.isEmpty());
        QCOMPARE(refusalOf(write(bytes)), kRefused);
    }

    /// Of its black ink libjxl gives nothing, so that the picture would be another.
    void aCutFileIsRefused() {
        const QByteArray whole = jpegXlOf(fourInks(600));
        for (int tenths = 1; tenths < 10; ++tenths) {
            QCOMPARE(refusalOf(write(whole.first(whole.size() * tenths / 10))),
                     u"The JPEG XL file is damaged"_s);
        }
    }

    void aFileThatGetsAnotherSizeMeanwhileIsRefused() {
        const QByteArray large = jpegXlOf(fourInks(40));
        const QByteArray small = jpegXlOf(fourInks(20));
        QStringList reasons;
        for (int call = 2; call < 12; ++call) {
            const QString path = write(large);
            FaultyCalls calls;
            calls.fault.call = call;
            calls.fault.first = [&] { writeFile(path, small); };
            try {
                const PdfImage image = toPdfImage(path, calls);
                QCOMPARE(decoded(image).size(), QSize(image.width, image.height));
                requireInks(image, image.width);
            } catch (const Error &error) {
                reasons += error.reason();
            }
        }
        QVERIFY(reasons.contains(u"The JPEG XL file is damaged"_s));
    }

  private:
    QTemporaryDir m_folder;
    int m_files = 0;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"%1.jxl"_s.arg(++m_files)), bytes);
    }

    static void requireInks(const PdfImage &image, int side) {
        const QImage inks = decoded(image).convertToFormat(QImage::Format_RGBA8888);
        QCOMPARE(inks.size(), QSize(side, side));
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const QColor color = inks.pixelColor(x, y);
                QCOMPARE(
                    QList<int>({color.red(), color.green(), color.blue(), color.alpha()}),
                    QList<int>({inkAt(x, y, 0), inkAt(x, y, 1), inkAt(x, y, 2), inkAt(x, y, 3)}));
            }
        }
    }
};

FOLIOFORGE_TEST(JpegXlInksTest)
#include "JpegXlInksTest.moc"
