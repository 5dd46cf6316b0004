// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegWriter.h"
#include "support/TestUnit.h"

#include "compress/PlanarImage.h"

#include <QImage>
#include <QTest>

#include <array>

using namespace folioforge;

namespace {

QImage decoded(const std::string &file) {
    return QImage::fromData(QByteArray::fromStdString(file), "JPEG");
}

/// A grey picture of noise.
PlanarImage noise(int width, int height) {
    PlanarImage image(width, height);
    image.addPlanes(1);
    quint32 seed = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525 + 1013904223;
            image.planes[0].row(y)[x] = static_cast<std::uint8_t>(seed >> 24);
        }
    }
    return image;
}

int largestDifference(const PlanarImage &image, const QImage &other) {
    int largest = 0;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            largest =
                std::max(largest, std::abs(image.planes[0].row(y)[x] - qGray(other.pixel(x, y))));
        }
    }
    return largest;
}

} // namespace

/// JPEG files as Qt reads them.
class JpegWriterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everySizeComesBack_data() {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("one pixel") << 1 << 1;
        QTest::newRow("a block and one") << 9 << 17;
        QTest::newRow("large") << 33 << 1030;
    }

    void everySizeComesBack() {
        QFETCH(const int, width);
        QFETCH(const int, height);
        const PlanarImage image = noise(width, height);
        const QImage back = decoded(encodeJpeg(image, 100));
        QCOMPARE(back.size(), QSize(width, height));
        QVERIFY(largestDifference(image, back) <= 3);
    }

    /// The tables of a large picture are made for every eighth band of eight rows.
    void bandsUnlikeThoseThatTheTablesAreMadeForComeBack() {
        PlanarImage image = noise(40, 8 * 100);
        for (int band = 0; band < 100; band += 8) {
            std::fill_n(image.planes[0].row(8 * band), 8 * 40, std::uint8_t(128));
        }
        const QImage back = decoded(encodeJpeg(image, 100));
        QCOMPARE(back.size(), QSize(40, 800));
        QVERIFY(largestDifference(image, back) <= 3);
    }

    void colorsComeBack() {
        constexpr std::array<QRgb, 6> kColors{0xffff0000, 0xff00ff00, 0xff0000ff,
                                              0xffffffff, 0xff000000, 0xff6496c8};
        for (const QRgb color : kColors) {
            PlanarImage image(32, 32);
            image.addPlanes(3);
            const std::array parts{qRed(color), qGreen(color), qBlue(color)};
            for (std::size_t i = 0; i < parts.size(); ++i) {
                std::fill_n(image.planes[i].row(0), image.planes[i].size(),
                            static_cast<std::uint8_t>(parts[i]));
            }
            toJpegColor(image);
            for (std::size_t i = 1; i < image.planes.size(); ++i) {
                Plane half(16, 16);
                std::fill_n(half.row(0), half.size(), image.planes[i].row(0)[0]);
                image.planes[i] = std::move(half);
            }
            const QRgb back = decoded(encodeJpeg(image, 100)).pixel(16, 16);
            QVERIFY2(std::abs(qRed(back) - qRed(color)) <= 2 &&
                         std::abs(qGreen(back) - qGreen(color)) <= 2 &&
                         std::abs(qBlue(back) - qBlue(color)) <= 2,
                     qPrintable(QString::number(back, 16)));
        }
    }
};

FOLIOFORGE_TEST(JpegWriterTest)
#include "JpegWriterTest.moc"
