#include "DecodedImage.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// GIF files, byte by byte.
class GifTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aScreenWithoutSizeIsAsLargeAsTheFirstImage_data() {
        QTest::addColumn<QByteArray>("screen");
        QTest::addColumn<QByteArray>("extension");
        QTest::addColumn<QSize>("size");
        QTest::newRow("no size") << QByteArray("00000000") << QByteArray() << QSize(3, 4);
        QTest::newRow("a comment before") << QByteArray("00000000") << comment() << QSize(3, 4);
        QTest::newRow("no width") << QByteArray("00000500") << QByteArray() << QSize(3, 5);
        QTest::newRow("no height") << QByteArray("05000000") << QByteArray() << QSize(5, 4);
        QTest::newRow("both") << QByteArray("05000600") << QByteArray() << QSize(5, 6);
    }

    void aScreenWithoutSizeIsAsLargeAsTheFirstImage() {
        QFETCH(const QByteArray, screen);
        QFETCH(const QByteArray, extension);
        QFETCH(const QSize, size);
        const QString path = gif(screen.constData(), extension + frame());
        const ImageHeader header = readImageHeader(path);
        QCOMPARE(QSize(header.width, header.height), size);
        const QImage picture = decoded(toPdfImage(path));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.pixelColor(1, 2), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(1, 3), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(2, 3), QColor(Qt::white));
    }

    void aScreenWithoutSizeNeedsAnImage_data() {
        QTest::addColumn<QByteArray>("rest");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("the end") << QByteArray(";");
        QTest::newRow("an extension without end") << comment().chopped(1);
        QTest::newRow("an extension alone") << comment() + ';';
        QTest::newRow("half an image") << comment() + frame().first(8);
    }

    void aScreenWithoutSizeNeedsAnImage() {
        QFETCH(const QByteArray, rest);
        QVERIFY(!refusalOf(gif("00000000", rest)).isEmpty());
    }

  private:
    QTemporaryDir m_folder;

    /// A file with a screen of `screen` and a palette of red, green, blue and white.
    QString gif(const char *screen, const QByteArray &rest) const {
        return writeFile(m_folder.filePath(u"picture.gif"_s), "GIF89a" +
                                                                  QByteArray::fromHex(screen) +
                                                                  QByteArray::fromHex("810000"
                                                                                      "ff0000"
                                                                                      "00ff00"
                                                                                      "0000ff"
                                                                                      "ffffff") +
                                                                  rest);
    }

    static QByteArray comment() {
        return QByteArray::fromHex("21fe"
                                   "03616263"
                                   "0164"
                                   "00");
    }

    /// An image of 2 x 2 pixels, one from the left and two from the top: red and green over blue
    /// and white. Its codes of three bits are clear, 0, 1, clear, 2, 3, end.
    static QByteArray frame() {
        return QByteArray::fromHex("2c"
                                   "0100"
                                   "0200"
                                   "0200"
                                   "0200"
                                   "00"
                                   "02"
                                   "03"
                                   "44a815"
                                   "00"
                                   "3b");
    }
};

FOLIOFORGE_TEST(GifTest)
#include "GifTest.moc"
