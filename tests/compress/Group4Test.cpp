// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kWidth = 1195; // Rows end within a byte.
constexpr int kHeight = 900;
constexpr int kRowBytes = (kWidth + 7) / 8;

/// The rows of a picture of rings with the edges that a scan has, where 1 is the ground.
QByteArray rings() {
    QByteArray rows(qsizetype(kRowBytes) * kHeight, '\xff');
    QRandomGenerator random(1);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const int place = (x * x + y * y + random.bounded(3000)) / 20'000;
            if (place % 4 == 0) {
                char &byte = rows[y * kRowBytes + x / 8];
                byte = static_cast<char>(byte & ~(0x80 >> (x % 8)));
            }
        }
    }
    return rows;
}

QByteArray inverted(QByteArray rows) {
    for (char &byte : rows) {
        byte = static_cast<char>(~byte);
    }
    return rows;
}

const QByteArray kGrey("/ColorSpace /DeviceGray /BitsPerComponent 1 /Filter /FlateDecode");

} // namespace

/// Bilevel pictures that become Group 4.
class Group4Test : public QObject, CompressionCase {
    Q_OBJECT

    void write(const QByteArray &keys, const QByteArray &data) {
        QVERIFY(photoPage("0 0 1 rg q 288 0 0 216 50 20 cm /Im0 Do Q")
                    .stream(5, imageKeys(kWidth, kHeight, keys), data)
                    .write(m_path));
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void itKeepsEveryPixel_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("black on white") << kGrey << flate(rings());
        QTest::newRow("white on black") << kGrey << flate(inverted(rings()));
        QTest::newRow("0 is white") << kGrey + " /Decode [1 0]" << flate(inverted(rings()));
        QTest::newRow("without a filter")
            << QByteArray("/ColorSpace /DeviceGray /BitsPerComponent 1") << rings();
        QTest::newRow("two colours")
            << QByteArray("/ColorSpace [/Indexed /DeviceRGB 1 <ff0000 00ff80>] /BitsPerComponent 1 "
                          "/Filter /FlateDecode")
            << flate(rings());
        QTest::newRow("stencil") << QByteArray(
                                        "/ImageMask true /BitsPerComponent 1 /Filter /FlateDecode")
                                 << flate(rings());
    }

    void itKeepsEveryPixel() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, data);
        write(keys, data);
        CompressionOutcome outcome;
        const PdfProbe copy(compressed(&outcome));
        QCOMPARE(outcome.imagesReduced, 1);
        QCOMPARE(copy.images()[0][kEncodingColumn], u"ccitt"_s);
        QCOMPARE(copy.images()[0][kWidthColumn], QString::number(kWidth));
        const PdfProbe document(m_path);
        QCOMPARE(copy.render(1, 150), document.render(1, 150));
        QCOMPARE(copy.renderWithMutool(1, 150), document.renderWithMutool(1, 150));
    }

    void itIsAsSmallAsThatOfOtherPrograms() {
        write(kGrey, flate(rings()));
        const QString copy = compressed();
        const QString bitmap = m_folder->filePath(u"rings.pbm"_s);
        writeFile(bitmap, "P4 " + QByteArray::number(kWidth) + ' ' + QByteArray::number(kHeight) +
                              '\n' + inverted(rings()));
        const QString tiff = m_folder->filePath(u"rings.tif"_s);
        const ToolRun run = runTool(u"convert"_s, {bitmap, u"-compress"_s, u"Group4"_s, tiff});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        // Both hold little beside the data.
        constexpr qint64 kAround = 1500;
        QVERIFY(qAbs(QFileInfo(copy).size() - QFileInfo(tiff).size()) < kAround);
        QVERIFY(QFileInfo(copy).size() > 5 * kAround);
    }

    void aNegativeIsAsSmallAsItsPicture() {
        write(kGrey, flate(rings()));
        const qint64 picture = QFileInfo(compressed()).size();
        write(kGrey, flate(inverted(rings())));
        const qint64 negative = QFileInfo(compressed()).size();
        constexpr qint64 kAround = 100; // Both hold little beside the same data.
        QVERIFY(qAbs(picture - negative) < kAround);
    }

    void whatWouldGetLargerStays() {
        QByteArray noise(qsizetype(kRowBytes) * kHeight, '\0');
        QRandomGenerator random(1);
        for (char &byte : noise) {
            byte = static_cast<char>(random.generate());
        }
        write(kGrey, flate(noise));
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QCOMPARE(outcome.imagesKept[0].reason, u"would not get smaller"_s);
    }

    void aPictureWithTooLittleDataStays() {
        write(kGrey, flate(rings().first(qsizetype(kRowBytes) * (kHeight - 1))));
        CompressionOutcome outcome;
        compressed(&outcome);
        QCOMPARE(outcome.imagesReduced, 0);
        QCOMPARE(outcome.imagesKept[0].reason, u"less data than the image's size needs"_s);
    }
};

FOLIOFORGE_TEST(Group4Test)
#include "Group4Test.moc"
