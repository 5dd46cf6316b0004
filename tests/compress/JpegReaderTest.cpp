// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegReader.h"

#include "error/Error.h"
#include "support/JpegFile.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QTest>

#include <cmath>
#include <random>
#include <string>

#include <jpeglib.h>

using namespace folioforge;

namespace {

struct Kind {
    int components = 3;
    int across = 2; ///< How much finer the first component is sampled than the others.
    int down = 2;
    J_COLOR_SPACE stored = JCS_UNKNOWN; ///< Of the file, where not libjpeg's choice.
    int quality = 90;
    int restartRows = 0;
    bool progressive = false;
    bool arithmetic = false;
    bool optimized = false;
};

/// Waves with a little noise, far from black and white, so that nothing is cut off there.
int sampleAt(int x, int y, int component, std::minstd_rand &random) {
    const double wave = std::sin(x * 0.21 * (component + 1)) + std::cos(y * 0.13 + component);
    return static_cast<int>(128 + 30 * wave) + static_cast<int>(random() % 9);
}

std::string jpegFile(int width, int height, const Kind &kind) {
    const J_COLOR_SPACE given = kind.components == 1     ? JCS_GRAYSCALE
                                : kind.components == 4   ? JCS_CMYK
                                : kind.stored == JCS_RGB ? JCS_RGB
                                                         : JCS_YCbCr;
    const auto configure = [&kind](jpeg_compress_struct &codec) {
        if (kind.stored != JCS_UNKNOWN) {
            jpeg_set_colorspace(&codec, kind.stored);
        }
        jpeg_set_quality(&codec, kind.quality, TRUE);
        codec.comp_info[0].h_samp_factor = kind.across;
        codec.comp_info[0].v_samp_factor = kind.down;
        codec.restart_in_rows = kind.restartRows;
        codec.arith_code = static_cast<boolean>(kind.arithmetic);
        codec.optimize_coding = static_cast<boolean>(kind.optimized);
        if (kind.progressive) {
            jpeg_simple_progression(&codec);
        }
    };
    std::minstd_rand random(1);
    const auto appendRow = [&](int y, std::vector<JSAMPLE> &row) {
        for (int x = 0; x < width * kind.components; ++x) {
            row.push_back(static_cast<JSAMPLE>(
                sampleAt(x / kind.components, y, x % kind.components, random)));
        }
    };
    return test::jpegFile({width, height}, kind.components, given, configure, appendRow)
        .toStdString();
}

/// How far the samples of `small` are at most from the averages of the squares of `whole` that they
/// stand for, in all squares that are whole.
double distance(const Plane &small, const Plane &whole) {
    const int side = static_cast<int>(std::lround(double(whole.width()) / small.width()));
    double largest = 0;
    for (int y = 0; (y + 1) * side <= whole.height(); ++y) {
        for (int x = 0; (x + 1) * side <= whole.width(); ++x) {
            double sum = 0;
            for (int i = 0; i < side * side; ++i) {
                const int row = y * side + i / side;
                sum += whole.row(row)[x * side + i % side];
            }
            largest = std::max(largest, std::abs(small.row(y)[x] - sum / (side * side)));
        }
    }
    return largest;
}

} // namespace

/// Reduced pictures beside the whole ones.
class JpegReaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everySampleIsTheAverageOfASquare_data() {
        QTest::addColumn<Kind>("kind");
        QTest::newRow("grey") << Kind{.components = 1, .across = 1, .down = 1};
        QTest::newRow("grey that says it is sampled finer") << Kind{.components = 1};
        QTest::newRow("colour as fine as brightness") << Kind{.across = 1, .down = 1};
        QTest::newRow("colour half as wide") << Kind{.down = 1};
        QTest::newRow("colour half as high") << Kind{.across = 1};
        QTest::newRow("colour half as wide and high") << Kind{};
        QTest::newRow("four inks, ten blocks in a group")
            << Kind{.components = 4, .stored = JCS_YCCK};
        QTest::newRow("restarts") << Kind{.restartRows = 1};
        QTest::newRow("the best quality") << Kind{.quality = 100};
        QTest::newRow("a low quality") << Kind{.quality = 20};
        QTest::newRow("tables of its own") << Kind{.optimized = true};
        QTest::newRow("progressive") << Kind{.progressive = true};
        QTest::newRow("arithmetic code") << Kind{.arithmetic = true};
        QTest::newRow("colour a quarter as wide") << Kind{.across = 4, .down = 1};
    }

    void everySampleIsTheAverageOfASquare() {
        QFETCH(const Kind, kind);
        const std::string file = jpegFile(90, 67, kind);
        const PlanarImage whole = JpegReader(file, std::nullopt).decode(8);
        for (const int eighths : {1, 2, 4}) {
            const PlanarImage small = JpegReader(file, std::nullopt).decode(eighths);
            QCOMPARE(small.width, (90 * eighths + 7) / 8);
            QCOMPARE(small.height, (67 * eighths + 7) / 8);
            QCOMPARE(small.planes.size(), whole.planes.size());
            for (std::size_t i = 0; i < whole.planes.size(); ++i) {
                QVERIFY(small.planes[i].width() >= whole.planes[i].width() * eighths / 8);
                // The whole picture is rounded, and so are the samples.
                constexpr double kRounding = 1.1;
                QVERIFY(distance(small.planes[i], whole.planes[i]) < kRounding);
            }
        }
    }

    void wholePicturesAreAsQtReadsThem_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("ends within a block") << QSize(90, 67);
        QTest::newRow("whole blocks") << QSize(96, 64);
        QTest::newRow("as wide as whole blocks") << QSize(96, 67);
    }

    void wholePicturesAreAsQtReadsThem() {
        QFETCH(const QSize, size);
        const Kind grey{.components = 1, .across = 1, .down = 1};
        const std::string file = jpegFile(size.width(), size.height(), grey);
        const PlanarImage image = JpegReader(file, std::nullopt).decode(8);
        const QImage expected = QImage::fromData(QByteArray::fromStdString(file), "JPEG");
        QCOMPARE(QSize(image.width, image.height), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                QCOMPARE(int(image.planes[0].row(y)[x]), qGray(expected.pixel(x, y)));
            }
        }
    }

    void theEdgesOfAPictureThatEndsWithinABlockAreThere() {
        const std::string file = jpegFile(90, 67, {.across = 1, .down = 1, .quality = 100});
        const PlanarImage small = JpegReader(file, std::nullopt).decode(4);
        const Plane &plane = small.planes[0];
        std::minstd_rand random(1);
        for (int x = 0; x < plane.width(); ++x) {
            const int here = sampleAt(2 * x, 66, 0, random);
            QVERIFY(std::abs(plane.row(plane.height() - 1)[x] - here) < 24);
        }
        for (int y = 0; y < plane.height(); ++y) {
            const int here = sampleAt(89, 2 * y, 0, random);
            QVERIFY(std::abs(plane.row(y)[plane.width() - 1] - here) < 24);
        }
    }

    void onePixelIsRead() {
        const std::string file = jpegFile(1, 1, {});
        QCOMPARE(JpegReader(file, std::nullopt).decode(4).planes[0].size(), std::size_t(1));
    }

    void aFileThatEndsEarlyIsDamaged() {
        const std::string file = jpegFile(90, 67, {.restartRows = 2});
        const std::size_t scan = file.find("\xff\xda") + 14;
        for (std::size_t length = scan; length < file.size(); length += 7) {
            const std::string cut = file.substr(0, length);
            QVERIFY_THROWS_EXCEPTION(Error,
                                     static_cast<void>(JpegReader(cut, std::nullopt).decode(4)));
        }
    }

    void aCodeThatNoTableHasIsDamaged() {
        std::string file = jpegFile(90, 67, {});
        // Sixteen ones are no code (ITU-T T.81, C); a zero behind 0xff says that it is data.
        file.replace(file.find("\xff\xda") + 14, 6, "\xff\0\xff\0\xff\0", 6);
        QVERIFY_THROWS_EXCEPTION(Error,
                                 static_cast<void>(JpegReader(file, std::nullopt).decode(4)));
    }

    void lightAndInksSampledDifferentlyAreStillBroughtToOneSize_data() {
        QTest::addColumn<Kind>("kind");
        QTest::newRow("light") << Kind{.stored = JCS_RGB};
        QTest::newRow("light, alike") << Kind{.across = 1, .down = 1, .stored = JCS_RGB};
    }

    void lightAndInksSampledDifferentlyAreStillBroughtToOneSize() {
        QFETCH(const Kind, kind);
        const std::string file = jpegFile(90, 67, kind);
        for (int eighths = 1; eighths <= 4; ++eighths) {
            const PlanarImage image = JpegReader(file, std::nullopt).decode(eighths);
            QCOMPARE(image.planes[1].width(), image.width);
            QCOMPARE(image.planes[1].height(), image.height);
        }
    }
};

FOLIOFORGE_TEST(JpegReaderTest)
#include "JpegReaderTest.moc"
