#include "compress/jpeg/ReducedScan.h"

#include "compress/jpeg/JpegErrors.h"
#include "compress/jpeg/JpegReader.h"
#include "error/Error.h"
#include "support/JpegFile.h"
#include "support/TestUnit.h"

#include <QTest>

#include <array>
#include <cmath>
#include <numbers>
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

/// A grey picture of one block with these codes (how many of each length, and their values) for the
/// first coefficient and the others, each of which it has once: a bit of 0.
std::string tinyFile(std::vector<int> dcLengths, const std::vector<int> &dcValues,
                     std::vector<int> acLengths, const std::vector<int> &acValues) {
    std::string file("\xff\xd8\xff\xdb\0\x43\0", 7);
    file.append(64, '\1');
    const auto addTable = [&file](char number, std::vector<int> &lengths,
                                  const std::vector<int> &values) {
        lengths.resize(16);
        file += std::string("\xff\xc4\0", 3);
        file += static_cast<char>(19 + values.size());
        file += number;
        file.append(lengths.begin(), lengths.end());
        file.append(values.begin(), values.end());
    };
    addTable(0, dcLengths, dcValues);
    addTable(0x10, acLengths, acValues);
    file += std::string("\xff\xc0\0\x0b\x08\0\x08\0\x08\1\1\x11\0", 13);
    file += std::string("\xff\xda\0\x08\1\1\0\0\x3f\0\x3f\xff\xd9", 13);
    return file;
}

/// What readReducedScan() gives; nothing where libjpeg finds the header damaged.
std::optional<PlanarImage> reduced(const std::string &file, int eighths) {
    jpeg_decompress_struct codec = {};
    JpegEscape escape = {};
    codec.err = install(escape);
    std::optional<PlanarImage> image;
    if (!setjmp(escape.target)) {
        jpeg_create_decompress(&codec);
        jpeg_mem_src(&codec, reinterpret_cast<const unsigned char *>(file.data()), file.size());
        jpeg_read_header(&codec, TRUE);
        image = readReducedScan(codec, eighths);
    }
    jpeg_destroy_decompress(&codec);
    return image;
}

double basis(int sample, int frequency, int points) {
    return std::cos((2 * sample + 1) * frequency * std::numbers::pi / (2 * points)) *
           (frequency == 0 ? 1 : std::numbers::sqrt2);
}

/// The sample at (x, y) of a block of `whole` at (left, top), drawn with `points` x `points`
/// samples: by the definitions of the cosine transform and its inverse, term by term.
double expected(const Plane &whole, int left, int top, int x, int y, int points) {
    double sum = 0;
    for (int v = 0; v < points; ++v) {
        for (int u = 0; u < points; ++u) {
            double coefficient = 0;
            for (int row = 0; row < 8; ++row) {
                for (int column = 0; column < 8; ++column) {
                    coefficient += whole.row(top + row)[left + column] * basis(column, u, 8) *
                                   basis(row, v, 8) / 64;
                }
            }
            sum += coefficient * basis(x, u, points) * basis(y, v, points);
        }
    }
    return sum;
}

/// How far `small` is at most from the lower frequencies of `whole`, in all blocks that are whole.
double distance(const Plane &small, const Plane &whole, int points) {
    double largest = 0;
    for (int top = 0; top + 8 <= whole.height(); top += 8) {
        for (int left = 0; left + 8 <= whole.width(); left += 8) {
            for (int i = 0; i < points * points; ++i) {
                const int x = i % points;
                const int y = i / points;
                const int found = small.row(top / 8 * points + y)[left / 8 * points + x];
                largest =
                    std::max(largest, std::abs(found - expected(whole, left, top, x, y, points)));
            }
        }
    }
    return largest;
}

/// Whether libjpeg, which decodes more than half a picture, reads the file without a word.
bool isInOrder(const std::string &file) {
    try {
        return JpegReader(file, std::nullopt).decode(5).width > 0;
    } catch (const Error &) {
        return false;
    }
}

} // namespace

/// Pictures beside what the definition of the transform makes of libjpeg's whole ones.
class ReducedScanTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyCommonKindIsDrawnFromItsLowerFrequencies_data() {
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
    }

    void everyCommonKindIsDrawnFromItsLowerFrequencies() {
        QFETCH(const Kind, kind);
        const std::string file = jpegFile(90, 67, kind);
        const PlanarImage whole = JpegReader(file, std::nullopt).decode(8);
        for (int eighths = 1; eighths <= 4; ++eighths) {
            const auto small = reduced(file, eighths);
            QVERIFY(small);
            QCOMPARE(small->width, (90 * eighths + 7) / 8);
            QCOMPARE(small->height, (67 * eighths + 7) / 8);
            QCOMPARE(small->planes.size(), whole.planes.size());
            for (std::size_t i = 0; i < whole.planes.size(); ++i) {
                // The whole picture is rounded, and so are the samples.
                constexpr double kRounding = 1.6;
                QVERIFY(distance(small->planes[i], whole.planes[i], eighths) < kRounding);
            }
        }
    }

    void colorPlanesAreAsMuchSmallerAsInTheFile() {
        const auto small = reduced(jpegFile(90, 67, {}), 3);
        QVERIFY(small);
        QCOMPARE(small->planes[0].width(), 34);  // 90 * 3/8 = 33.75
        QCOMPARE(small->planes[0].height(), 26); // 67 * 3/8 = 25.1
        QCOMPARE(small->planes[1].width(), 17);
        QCOMPARE(small->planes[1].height(), 13);
    }

    void theEdgesOfAPictureThatEndsWithinABlockAreThere() {
        const auto small = reduced(jpegFile(90, 67, {.across = 1, .down = 1, .quality = 100}), 4);
        QVERIFY(small);
        const Plane &plane = small->planes[0];
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
        const auto small = reduced(jpegFile(1, 1, {}), 4);
        QVERIFY(small);
        QCOMPARE(small->planes[0].size(), std::size_t(1));
    }

    void otherKindsAreLeftToLibjpeg_data() {
        QTest::addColumn<Kind>("kind");
        QTest::newRow("progressive") << Kind{.progressive = true};
        QTest::newRow("arithmetic code") << Kind{.arithmetic = true};
        QTest::newRow("colour a quarter as wide") << Kind{.across = 4, .down = 1};
    }

    void otherKindsAreLeftToLibjpeg() {
        QFETCH(const Kind, kind);
        const std::string file = jpegFile(90, 67, kind);
        QVERIFY(!reduced(file, 4));
        const PlanarImage image = JpegReader(file, std::nullopt).decode(4);
        QCOMPARE(image.width, 45);
        const auto common = reduced(jpegFile(90, 67, {}), 4);
        QVERIFY(common);
        QVERIFY(std::abs(image.planes[0].row(10)[10] - common->planes[0].row(10)[10]) < 8);
    }

    void aFileThatEndsEarlyIsNotRead() {
        const std::string file = jpegFile(90, 67, {.restartRows = 2});
        const std::size_t scan = file.find("\xff\xda") + 14;
        for (std::size_t length = scan; length < file.size(); ++length) {
            QVERIFY(!reduced(file.substr(0, length), 4));
            QVERIFY(!isInOrder(file.substr(0, length)));
        }
    }

    void nothingIsReadThatLibjpegFindsDamaged() {
        std::minstd_rand random(7);
        int read = 0;
        int damaged = 0;
        for (const Kind &kind : {Kind{}, Kind{.restartRows = 1}, Kind{.components = 1}}) {
            const std::string file = jpegFile(70, 50, kind);
            const std::size_t scan = file.find("\xff\xda") + 14;
            for (int i = 0; i < 1500; ++i) {
                std::string changed = file;
                changed[scan + random() % (file.size() - scan)] = static_cast<char>(random());
                const bool inOrder = isInOrder(changed);
                damaged += inOrder ? 0 : 1;
                if (reduced(changed, 4)) {
                    ++read;
                    QVERIFY2(inOrder, qPrintable(QString::number(i)));
                }
            }
        }
        QVERIFY(read > 100);
        QVERIFY(damaged > 100);
    }

    void nothingIsReadByTablesThatLibjpegFindsDamaged() {
        std::minstd_rand random(11);
        const std::string file = jpegFile(70, 50, {.optimized = true});
        const std::size_t tables = file.find("\xff\xdb");
        const std::size_t end = file.find("\xff\xda") + 14;
        int read = 0;
        for (int i = 0; i < 3000; ++i) {
            std::string changed = file;
            changed[tables + random() % (end - tables)] = static_cast<char>(random());
            if (reduced(changed, 4)) {
                ++read;
                QVERIFY2(isInOrder(changed), qPrintable(QString::number(i)));
            }
        }
        QVERIFY(read > 100); // Where the change is one of a step or of a code that is not used.
        QVERIFY(read < 2000);
    }

    void tablesWithTheCodeOfOnesAloneAreNotRead() {
        // A grey block of 8 x 8: all its first coefficients' sizes, then ends of block, are one
        // bit.
        QVERIFY(!reduced(tinyFile({2}, {0, 1}, {2}, {0, 1}), 4));
        QVERIFY(reduced(tinyFile({1, 1}, {0, 1}, {1, 1}, {0, 1}), 4));
    }

    void tablesWithSizesThatNoCoefficientHasAreNotRead() {
        QVERIFY(!reduced(tinyFile({1, 1}, {0, 16}, {1, 1}, {0, 1}), 4));
        QVERIFY(!isInOrder(tinyFile({1, 1}, {0, 16}, {1, 1}, {0, 1})));
    }

    void whatStandsBehindTheScanButItsEndIsNotRead_data() {
        QTest::addColumn<QByteArray>("between");
        QTest::newRow("a byte") << QByteArray("\x01");
        QTest::newRow("a fill byte") << QByteArray("\xff");
        QTest::newRow("a restart") << QByteArray("\xff\xd0");
        QTest::newRow("a comment") << QByteArray("\xff\xfe\0\2", 4);
        QTest::newRow("a number of lines") << QByteArray("\xff\xdc\0\4\0\x43", 6);
    }

    void whatStandsBehindTheScanButItsEndIsNotRead() {
        QFETCH(const QByteArray, between);
        std::string file = jpegFile(90, 67, {});
        QVERIFY(reduced(file, 4));
        file.insert(file.size() - 2, between.toStdString());
        QVERIFY(!reduced(file, 4));
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

FOLIOFORGE_TEST(ReducedScanTest)
#include "ReducedScanTest.moc"
