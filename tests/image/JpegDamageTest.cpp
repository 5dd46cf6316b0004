// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/JpegFile.h"
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

constexpr QSize kSize(64, 80);

/// A grey picture of ten rows of blocks, with detail everywhere.
QByteArray picture(const std::function<void(jpeg_compress_struct &)> &configure) {
    return jpegFile(kSize, 1, JCS_GRAYSCALE, configure, [](int y, std::vector<JSAMPLE> &row) {
        for (int x = 0; x < kSize.width(); ++x) {
            row.push_back(static_cast<JSAMPLE>((x * x + 7 * y * (x % 5) + 40) % 250));
        }
    });
}

/// With a restart marker behind each row of blocks.
QByteArray pictureWithRestarts() {
    return picture([](jpeg_compress_struct &codec) { codec.restart_in_rows = 1; });
}

QByteArray plainPicture() {
    return picture([](jpeg_compress_struct & /*codec*/) {});
}

QByteArray progressivePicture() {
    return picture([](jpeg_compress_struct &codec) { jpeg_simple_progression(&codec); });
}

/// A grey picture of noise, in more than a megabyte, with as many restart markers as it has rows of
/// blocks.
QByteArray largePicture() {
    constexpr int kLargeSide = 1600;
    std::mt19937 random(20240304);
    return jpegFile(
        QSize(kLargeSide, kLargeSide), 1, JCS_GRAYSCALE,
        [](jpeg_compress_struct &codec) {
            jpeg_set_quality(&codec, 90, TRUE);
            codec.restart_in_rows = 1;
        },
        [&](int /*y*/, std::vector<JSAMPLE> &row) {
            for (int x = 0; x < kLargeSide; ++x) {
                row.push_back(static_cast<JSAMPLE>(random()));
            }
        });
}

/// Where the coded data of scan number `scan` begin, counted from 0.
qsizetype codedDataOf(const QByteArray &jpeg, int scan = 0) {
    qsizetype at = jpeg.indexOf("\xFF\xDA");
    for (int i = 0; i < scan; ++i) {
        at = jpeg.indexOf("\xFF\xDA", at + 1);
    }
    return at + 2 + jpeg.at(at + 3);
}

/// The upper rows of what Qt's reader makes of a JPEG file.
QImage upperRows(const QByteArray &jpeg, int rows) {
    return QImage::fromData(jpeg, "jpeg")
        .convertToFormat(QImage::Format_Grayscale8)
        .copy(0, 0, kSize.width(), rows);
}

} // namespace

/// JPEG files that are not whole: what is there is taken, what is missing is told.
class JpegDamageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cutPictureKeepsItsUpperRows() {
        const QByteArray whole = pictureWithRestarts();
        const qsizetype sixth = whole.indexOf("\xFF\xD5"); // The marker behind 48 rows.
        QVERIFY(sixth > 0);
        const PdfImage image = toPdfImage(write(whole.first(sixth)));
        QCOMPARE(image.warnings, Warnings{cutOffPicture(32, 80)});
        QCOMPARE(image.height, 80);
        QCOMPARE(image.embeddedAs, EmbeddedAs::Recompressed);
        const QImage shown = decoded(image).convertToFormat(QImage::Format_Grayscale8);
        QCOMPARE(shown.copy(0, 0, kSize.width(), 48), upperRows(whole, 48));
    }

    void cutPictureThatEndsInOrderIsTold() {
        const QByteArray whole = pictureWithRestarts();
        const QByteArray upper = whole.first(whole.indexOf("\xFF\xD5"));
        const PdfImage image = toPdfImage(write(upper + "\xFF\xD9"));
        QCOMPARE(image.warnings, Warnings{faultyPicture()});
    }

    void cutPictureWithoutRestartMarkersIsTold() {
        const QByteArray whole = plainPicture();
        const qsizetype coded = codedDataOf(whole);
        const PdfImage image = toPdfImage(write(whole.first(coded + (whole.size() - coded) / 2)));
        QCOMPARE(image.warnings.size(), size_t(1));
        QVERIFY(image.warnings.front().text.startsWith(u"The picture is cut off: "));
        const QImage shown = decoded(image).convertToFormat(QImage::Format_Grayscale8);
        QCOMPARE(shown.copy(0, 0, kSize.width(), 16), upperRows(whole, 16));
    }

    void progressivePictureCutInALaterScanIsCoarse() {
        const QByteArray whole = progressivePicture();
        const PdfImage image = toPdfImage(write(whole.first(codedDataOf(whole, 2) + 9)));
        QCOMPARE(image.warnings, Warnings{coarsePicture()});
        QCOMPARE(image.height, 80);
    }

    void progressivePictureCutBetweenScansIsCoarse() {
        const QByteArray whole = progressivePicture();
        qsizetype scan = whole.indexOf("\xFF\xDA", codedDataOf(whole, 0));
        scan = std::min(scan, whole.indexOf("\xFF\xC4", codedDataOf(whole, 0)));
        const PdfImage image = toPdfImage(write(whole.first(scan)));
        QCOMPARE(image.warnings, Warnings{coarsePicture()});
    }

    void tableThatIsNoneLeavesTheScansBefore() {
        QByteArray damaged = progressivePicture();
        const qsizetype table = damaged.indexOf("\xFF\xC4", codedDataOf(damaged, 1));
        // More codes of each length than there can be.
        damaged.replace(table + 5, 16, QByteArray(16, '\xFF'));
        QCOMPARE(refusalOf(write(damaged)), QString());
        QCOMPARE(toPdfImage(write(damaged)).warnings, Warnings{coarsePicture()});
    }

    void progressivePictureCutInItsFirstScanLacksRows() {
        const QByteArray whole = progressivePicture();
        const qsizetype coded = codedDataOf(whole);
        const qsizetype end = whole.indexOf("\xFF\xC4", coded);
        const PdfImage image = toPdfImage(write(whole.first(coded + (end - coded) / 2)));
        QCOMPARE(image.warnings.size(), size_t(1));
        QVERIFY(image.warnings.front().text.contains(u" % of its rows"));
    }

    void pictureThatLacksItsEndMarkerAloneIsWhole() {
        for (const QByteArray &whole : {plainPicture(), progressivePicture()}) {
            const PdfImage image = toPdfImage(write(whole.chopped(2)));
            QVERIFY(image.warnings.empty());
            QCOMPARE(dataOf(image), whole);
            QCOMPARE(image.filter, ImageFilter::Dct);
        }
    }

    void pictureWithoutCodedDataIsRefused() {
        const QByteArray whole = plainPicture();
        for (const QByteArray &end : {QByteArray(), QByteArray("\xFF\xD9")}) {
            QCOMPARE(refusalOf(write(whole.first(codedDataOf(whole)) + end)),
                     u"The JPEG file is damaged: none of its rows could be read"_s);
        }
    }

    void unknownMarkerAmongCodedDataIsTold() {
        QByteArray damaged = plainPicture();
        const qsizetype coded = codedDataOf(damaged);
        damaged.replace(coded + (damaged.size() - coded) / 2, 2, "\xFF\x41");
        QVERIFY(!toPdfImage(write(damaged)).warnings.empty());
    }

    void restartMarkersOutOfOrderAreTold() {
        QByteArray damaged = pictureWithRestarts();
        damaged.replace(damaged.indexOf("\xFF\xD1"), 2, "\xFF\xD3");
        QVERIFY(!toPdfImage(write(damaged)).warnings.empty());
    }

    void restartMarkerWhereNoneMayStandIsTold() {
        QByteArray damaged = plainPicture();
        const qsizetype coded = codedDataOf(damaged);
        qsizetype at = coded + (damaged.size() - coded) / 2;
        while (damaged.at(at - 1) == '\xFF') {
            ++at;
        }
        QVERIFY(!toPdfImage(write(damaged.insert(at, "\xFF\xD0"))).warnings.empty());
    }

    void lostStretchOfCodedDataIsTold() {
        QByteArray damaged = pictureWithRestarts();
        const qsizetype first = damaged.indexOf("\xFF\xD1");
        damaged.remove(first, damaged.indexOf("\xFF\xD4") - first);
        QVERIFY(!toPdfImage(write(damaged)).warnings.empty());
        QByteArray emptied = plainPicture(); // The end marker stands, nearly all before it is gone.
        emptied = emptied.first(codedDataOf(emptied) + 8) + "\xFF\xD9";
        QVERIFY(isTold(write(emptied)));
    }

    void damagedTableLeavesNoBlankPage() {
        const QByteArray whole = plainPicture();
        for (const char *marker : {"\xFF\xC4", "\xFF\xDB"}) {
            QByteArray damaged = whole;
            damaged.replace(whole.indexOf(marker) + 4, 20, QByteArray(20, '\x7F'));
            QVERIFY(isTold(write(damaged)));
        }
    }

    void tablesThatGoWithoutSayingAreFilledIn() {
        const QByteArray whole = plainPicture();
        QByteArray bare = whole;
        while (bare.contains("\xFF\xC4")) {
            const qsizetype table = bare.indexOf("\xFF\xC4");
            bare.remove(table, 2 + (uchar(bare[table + 2]) << 8) + uchar(bare[table + 3]));
        }
        const PdfImage image = toPdfImage(write(bare));
        QVERIFY(image.warnings.empty());
        QCOMPARE(image.filter, ImageFilter::Flate); // Not every reader fills them in.
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_Grayscale8), upperRows(whole, 80));
    }

    void largePhotoThatIsCutIsTold() {
        const QByteArray comment = "\xFF\xFE\xFF\xFF" + QByteArray(0xFFFD, 'x');
        QByteArray large = plainPicture();
        large.insert(2, comment.repeated(17)); // More than a megabyte.
        QCOMPARE(dataOf(toPdfImage(write(large))), large);
        QVERIFY(isTold(write(large.chopped(200))));
        QVERIFY(isTold(write(large.first(codedDataOf(large)) + "\xFF\xD9")));
    }

    void zerosAmongCodedDataAreTold() {
        QByteArray damaged = plainPicture();
        const qsizetype coded = codedDataOf(damaged);
        QVERIFY(damaged.size() - coded > 600);
        damaged.replace(coded + 300, 128, QByteArray(128, '\0'));
        QVERIFY(!toPdfImage(write(damaged)).warnings.empty());
    }

    void zerosAmongTheDataOfALargePhotoAreTold() {
        const QByteArray large = largePicture();
        QCOMPARE(dataOf(toPdfImage(write(large))), large);
        constexpr qsizetype kZeros = (1 << 17) + 128;
        for (const qsizetype at : {codedDataOf(large), large.size() / 2}) {
            QByteArray damaged = large;
            damaged.replace(at, kZeros, QByteArray(kZeros, '\0'));
            QVERIFY(!toPdfImage(write(damaged)).warnings.empty());
        }
    }

    void zerosThatArePixelsStay() {
        // Codes made for the picture: of a plain one both are a bit that is zero.
        const QByteArray plain = jpegFile(
            QSize(1600, 1600), 1, JCS_GRAYSCALE,
            [](jpeg_compress_struct &codec) { codec.optimize_coding = TRUE; },
            [](int /*y*/, std::vector<JSAMPLE> &row) { row.assign(1600, 200); });
        QVERIFY(plain.contains(QByteArray(1000, '\0')));
        QCOMPARE(dataOf(toPdfImage(write(plain))), plain);
        // With libjpeg's own codes each block of zeros takes 191 bits: 80 blocks.
        const QByteArray whole = plainPicture();
        const QByteArray zeros =
            whole.first(codedDataOf(whole)) + QByteArray(80 * 191 / 8, '\0') + "\xFF\xD9";
        QCOMPARE(dataOf(toPdfImage(write(zeros))), zeros);
    }

    void largePhotoWhoseLastRestartMarkerIsAnotherIsTold() {
        const QByteArray large = largePicture();
        // 200 rows of blocks: the last marker is the seventh of its round, counted from 0 the
        // sixth.
        const qsizetype last = large.lastIndexOf("\xFF\xD6");
        QVERIFY(last > large.lastIndexOf("\xFF\xD5"));
        QVERIFY(isTold(write(large.first(last) + "\xFF\xD9")));
    }

    void bytesBetweenSegmentsAreLeftOut() {
        const QByteArray whole = plainPicture();
        QByteArray padded = whole;
        padded.insert(whole.indexOf("\xFF\xDB"), QByteArray("\0\0stray\xFF\0", 9));
        const PdfImage image = toPdfImage(write(padded));
        QVERIFY(image.warnings.empty());
        QCOMPARE(dataOf(image), whole);
    }

    void bytesBehindTheEndStay() {
        const QByteArray file = plainPicture() + "a second picture";
        QCOMPARE(dataOf(toPdfImage(write(file))), file);
    }

    void arithmeticCodingIsDecoded() {
        const QByteArray file =
            picture([](jpeg_compress_struct &codec) { codec.arith_code = TRUE; });
        const PdfImage image = toPdfImage(write(file));
        QVERIFY(image.warnings.empty());
        QCOMPARE(image.filter, ImageFilter::Flate);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_Grayscale8), upperRows(file, 80));
        QVERIFY(!toPdfImage(write(file.first(file.size() / 2))).warnings.empty());
    }

    void cutAnywhereIsAsBeforeOrSaysSo_data() { addPictures(); }

    void cutAnywhereIsAsBeforeOrSaysSo() {
        QFETCH(const QByteArray, whole);
        std::mt19937 random(20240302); // The same cuts in every run.
        for (int round = 0; round < 10; ++round) {
            const auto length = static_cast<qsizetype>(random() % whole.size());
            requireWordsOrThePixelsOf(whole, whole.first(length), length);
        }
    }

    /// Not every change can be told: then what other programs see in the file stands in the PDF.
    void changedAnywhereIsAsInTheFileOrSaysSo_data() { addPictures(); }

    void changedAnywhereIsAsInTheFileOrSaysSo() {
        QFETCH(const QByteArray, whole);
        std::mt19937 random(20240303);
        for (int round = 0; round < 40; ++round) {
            QByteArray damaged = whole;
            const auto at = static_cast<qsizetype>(random() % (whole.size() - 8));
            for (int i = 0; i < (round % 2 == 0 ? 1 : 8); ++i) {
                damaged[at + i] = static_cast<char>(random());
            }
            requireWordsOrThePixelsOf(damaged, damaged, at);
        }
    }

  private:
    QTemporaryDir m_folder;

    static void addPictures() {
        QTest::addColumn<QByteArray>("whole");
        for (const QString &name : QDir(imageFile({})).entryList({u"*.jpg"_s}, QDir::Files)) {
            QTest::newRow(qPrintable(name)) << bytesOf(imageFile(name));
        }
        QTest::newRow("grey") << plainPicture();
        QTest::newRow("with restart markers") << pictureWithRestarts();
        QTest::newRow("progressive") << progressivePicture();
        QTest::newRow("arithmetic")
            << picture([](jpeg_compress_struct &codec) { codec.arith_code = TRUE; });
    }

    /// The file `damaged` is refused or taken with a warning, or its pixels are what Qt's reader
    /// sees in the file `seen`.
    void requireWordsOrThePixelsOf(const QByteArray &seen, const QByteArray &damaged,
                                   qsizetype place) {
        const QString path = write(damaged);
        if (isTold(path)) {
            return;
        }
        const PdfImage image = toPdfImage(path);
        if (image.color ==
            ImageColor::Cmyk) { // Programs differ in which inks they take for inverted.
            QCOMPARE(dataOf(image), seen);
            return;
        }
        const QImage picture = QImage::fromData(seen, "jpeg");
        QVERIFY2(!picture.isNull(), qPrintable(QString::number(place)));
        QVERIFY2(decoded(image).convertToFormat(QImage::Format_RGB32) ==
                     picture.convertToFormat(QImage::Format_RGB32),
                 qPrintable(QString::number(place)));
    }

    /// Whether the file is refused or taken with a warning.
    static bool isTold(const QString &path) {
        return !refusalOf(path).isEmpty() || !toPdfImage(path).warnings.empty();
    }

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"picture.jpg"_s), bytes);
    }
};

FOLIOFORGE_TEST(JpegDamageTest)
#include "JpegDamageTest.moc"
