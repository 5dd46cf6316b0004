#include "DecodedImage.h"

#include <QTemporaryDir>
#include <QTest>

using namespace folioforge;
using namespace folioforge::test;

class PngTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void transparentPaletteKeepsItsRows();
    void filteredRowsAreDealtOutForEachChannel();
    void damagedRowsAreRefused();
    void cutFileIsRefused();
    void claimOfManyPixelsInFewBytesIsRefused();

  private:
    QTemporaryDir m_folder;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(QStringLiteral("picture.png")), bytes);
    }
};

void PngTest::transparentPaletteKeepsItsRows() {
    QImage picture(QSize(5, 3), QImage::Format_Indexed8);
    picture.setColorTable({qRgba(255, 0, 0, 255), qRgba(0, 255, 0, 128), qRgba(0, 0, 255, 0)});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) {
            picture.setPixel(x, y, static_cast<uint>((x + y) % 3));
        }
    }
    const QString path = m_folder.filePath(QStringLiteral("palette.png"));
    QVERIFY(picture.save(path));
    const EncodedImage image = encodeImage(path);
    QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
    QCOMPARE(image.color, ImageColor::Indexed);
    QCOMPARE(image.palette.first(9), QByteArray::fromHex("ff000000ff000000ff"));
    QVERIFY(image.softMask != nullptr);
    const QImage mask = decoded(*image.softMask);
    QCOMPARE(qGray(mask.pixel(0, 0)), 255);
    QCOMPARE(qGray(mask.pixel(1, 0)), 128);
    QCOMPARE(qGray(mask.pixel(2, 0)), 0);
    QCOMPARE(qGray(mask.pixel(4, 2)), 255);
}

void PngTest::filteredRowsAreDealtOutForEachChannel() {
    // Each row of the picture asks for another filter, so that libpng uses them all.
    QImage picture(64, 40, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int red = y % 5 == 0 ? x * 4 : y % 5 == 1 ? (x * 7919) % 251 : y * 6;
            picture.setPixel(x, y, qRgba(red, (x * y) % 256, (x + y) % 256, 255 - x * 2));
        }
    }
    const QString path = m_folder.filePath(QStringLiteral("filters.png"));
    QVERIFY(picture.save(path));
    const EncodedImage image = encodeImage(path);
    const QImage color = decoded(image);
    const QImage alpha = decoded(*image.softMask);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            QCOMPARE(color.pixel(x, y) & 0xFFFFFF, picture.pixel(x, y) & 0xFFFFFF);
            QCOMPARE(qGray(alpha.pixel(x, y)), qAlpha(picture.pixel(x, y)));
        }
    }
}

void PngTest::damagedRowsAreRefused() {
    QByteArray bytes = bytesOf(imageFile(QStringLiteral("colour.png")));
    const qsizetype rows = bytes.indexOf("IDAT") + 20;
    bytes[rows] = static_cast<char>(bytes.at(rows) ^ 1);
    QCOMPARE(refusalOf(write(bytes)), QStringLiteral("The PNG file is damaged"));
}

void PngTest::cutFileIsRefused() {
    const QByteArray bytes = bytesOf(imageFile(QStringLiteral("colour.png")));
    QCOMPARE(refusalOf(write(bytes.chopped(100))), QStringLiteral("The file ends too early"));
}

void PngTest::claimOfManyPixelsInFewBytesIsRefused() {
    QByteArray bytes = bytesOf(imageFile(QStringLiteral("translucent.png")));
    bytes.replace(16, 8, QByteArray::fromHex("0000520800005208")); // 21,000 x 21,000.
    QCOMPARE(refusalOf(write(bytes)),
             QStringLiteral("The file is too short for the image its header describes"));
}

QTEST_GUILESS_MAIN(PngTest)
#include "PngTest.moc"
