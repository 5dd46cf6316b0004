// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/TestUnit.h"

#include "image/PictureDamage.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kSide = 64;
constexpr int kTileSide = 16;

/// A picture of 16 tiles, the rows of which tilePixel() gives.
QByteArray tiledPicture() {
    return bytesOf(imageFile(u"tiles.jp2"_s));
}

QRgb tilePixel(int x, int y) {
    return qRgb(4 * x, 4 * y, (x * y) % 256);
}

/// Where tile number `tile` begins, counted from 0.
qsizetype tileAt(const QByteArray &file, int tile) {
    qsizetype at = -1;
    for (int i = 0; i <= tile; ++i) {
        at = file.indexOf(QByteArray("\xFF\x90\x00\x0A", 4), at + 1);
    }
    return at;
}

/// Whether the tiles from the first up to `tiles`, row by row, show the picture.
bool showsTiles(const QImage &picture, int tiles) {
    constexpr int kAcross = kSide / kTileSide;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const bool isThere = y / kTileSide * kAcross + x / kTileSide < tiles;
            if (isThere && picture.pixel(x, y) != tilePixel(x, y)) {
                return false;
            }
        }
    }
    return true;
}

/// What is said where so much of the picture is missing.
Warnings lossOf(int percent, const QString &parts) {
    return {
        {WarningCode::PictureDamaged,
         u"The picture is cut off: %1 % of its %2 could not be read"_s.arg(percent).arg(parts)}};
}

} // namespace

/// JPEG 2000 files that are not whole: what is there is taken, what is missing is told.
class Jpeg2000DamageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void wholeTilesGoInAsTheyAre() {
        QCOMPARE(dataOf(toPdfImage(imageFile(u"tiles.jp2"_s))), tiledPicture());
    }

    void cutPictureKeepsItsTiles() {
        const QByteArray whole = tiledPicture();
        for (const qsizetype more : {0, 5, 40}) {
            const PdfImage image = toPdfImage(write(whole.first(tileAt(whole, 8) + more)));
            QCOMPARE(image.warnings, lossOf(50, u"tiles"_s));
            QVERIFY(showsTiles(decoded(image), 8));
        }
    }

    void lostTileIsTold() {
        QByteArray damaged = tiledPicture();
        const qsizetype last = tileAt(damaged, 15);
        damaged.remove(last, damaged.size() - 2 - last);
        const PdfImage image = toPdfImage(write(damaged));
        QCOMPARE(image.warnings, lossOf(6, u"tiles"_s));
        QVERIFY(showsTiles(decoded(image), 15));
    }

    void lostPartOfATileIsTold() {
        QByteArray damaged = tiledPicture();
        damaged[tileAt(damaged, 15) + 11] = 2; // Of the two parts that are stated one is there.
        QCOMPARE(toPdfImage(write(damaged)).warnings, lossOf(6, u"tiles"_s));
    }

    void cutPictureOfOneTileIsTold() {
        const QByteArray whole = bytesOf(imageFile(u"colour.jp2"_s));
        const qsizetype tile = tileAt(whole, 0);
        const qsizetype length = whole.size() - 2 - tile;
        const PdfImage image = toPdfImage(write(whole.first(tile + length * 3 / 4)));
        QCOMPARE(image.warnings, lossOf(25, u"data"_s));
        QCOMPARE(image.embeddedAs, EmbeddedAs::Recompressed);
    }

    void pictureThatLacksItsEndMarkerAloneIsWhole() {
        const PdfImage image = toPdfImage(write(tiledPicture().chopped(2)));
        QVERIFY(image.warnings.empty());
        QVERIFY(showsTiles(decoded(image), 16));
    }

    void cutAnywhereSaysSo_data() {
        QTest::addColumn<QString>("name");
        for (const QString &name : QDir(imageFile({})).entryList({u"*jp2*"_s}, QDir::Files)) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    void cutAnywhereSaysSo() {
        QFETCH(const QString, name);
        const QByteArray whole = bytesOf(imageFile(name));
        std::mt19937 random(20240304); // The same cuts in every run.
        for (int round = 0; round < 10; ++round) {
            // What takes away but the end marker is no loss.
            const auto length = static_cast<qsizetype>(random() % (whole.size() - 2));
            const QString path = write(whole.first(length));
            QVERIFY2(!refusalOf(path).isEmpty() || !toPdfImage(path).warnings.empty(),
                     qPrintable(QString::number(length)));
        }
    }

    void pictureWithoutTilesIsRefused() {
        const QByteArray whole = tiledPicture();
        for (const QByteArray &end : {QByteArray(), QByteArray("\xFF\xD9")}) {
            QCOMPARE(refusalOf(write(whole.first(tileAt(whole, 0)) + end)),
                     u"The JPEG 2000 file is damaged"_s);
        }
    }

    void headerThatNoDecoderReadsIsRefused() {
        QByteArray damaged = tiledPicture();
        const qsizetype style = damaged.indexOf("\xFF\x52"); // The coding style.
        damaged.replace(style + 4, 8, QByteArray(8, '\xFF'));
        QCOMPARE(refusalOf(write(damaged)), u"The JPEG 2000 file is damaged"_s);
    }

  private:
    QTemporaryDir m_folder;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"picture.jp2"_s), bytes);
    }
};

FOLIOFORGE_TEST(Jpeg2000DamageTest)
#include "Jpeg2000DamageTest.moc"
