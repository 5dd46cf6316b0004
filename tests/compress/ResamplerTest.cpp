// SPDX-License-Identifier: Apache-2.0

#include "compress/Resampler.h"
#include "support/TestUnit.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// A picture whose planes hold value(x, y) at the centre of each sample, x and y from 0 to 1.
template<typename Value>
PlanarImage drawn(int width, int height, int components, const Value &value) {
    PlanarImage image(width, height);
    image.addPlanes(components);
    for (Plane &plane : image.planes) {
        for (int y = 0; y < plane.height(); ++y) {
            for (int x = 0; x < plane.width(); ++x) {
                plane.row(y)[x] = static_cast<std::uint8_t>(
                    std::lround(value((x + .5) / plane.width(), (y + .5) / plane.height())));
            }
        }
    }
    return image;
}

/// What Lanczos' kernel of three lobes makes of `row` at the centre of sample `target` of `to`.
double lanczosSum(const std::vector<double> &row, int target, int to) {
    const double ratio = static_cast<double>(row.size()) / to;
    double sum = 0;
    double weights = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const double distance =
            std::numbers::pi * (static_cast<double>(i) + .5 - (target + .5) * ratio) / ratio;
        if (std::abs(distance) < 3 * std::numbers::pi) {
            const double weight = distance == 0 ? 1
                                                : 3 * std::sin(distance) * std::sin(distance / 3) /
                                                      (distance * distance);
            sum += weight * row[i];
            weights += weight;
        }
    }
    return sum / weights;
}

bool isFlat(const Plane &plane, int value) {
    return std::all_of(plane.row(0), plane.row(0) + plane.size(),
                       [value](std::uint8_t sample) { return sample == value; });
}

} // namespace

class ResamplerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void sizesAndColorsHalfOfThem_data() {
        QTest::addColumn<int>("components");
        QTest::newRow("grey") << 1;
        QTest::newRow("colour") << 3;
        QTest::newRow("inks") << 4;
    }

    void sizesAndColorsHalfOfThem() {
        QFETCH(const int, components);
        const PlanarImage image =
            resample(drawn(100, 60, components, [](double, double) { return 7; }), 33, 21);
        QCOMPARE(image.components(), components);
        for (int i = 0; i < components; ++i) {
            const bool isHalf = components > 1 && (i == 1 || i == 2);
            const Plane &plane = image.planes[static_cast<std::size_t>(i)];
            QCOMPARE(plane.width(), isHalf ? 17 : 33);
            QCOMPARE(plane.height(), isHalf ? 11 : 21);
        }
    }

    void flatAreasKeepTheirValue_data() {
        QTest::addColumn<int>("to");
        for (const int to : {1, 7, 50, 99, 199, 200}) {
            QTest::addRow("%d", to) << to;
        }
    }

    void flatAreasKeepTheirValue() {
        QFETCH(const int, to);
        for (const int value : {0, 1, 128, 254, 255}) {
            const PlanarImage image =
                resample(drawn(200, 200, 3, [value](double, double) { return value; }), to, to);
            for (const Plane &plane : image.planes) {
                QVERIFY(isFlat(plane, value));
            }
        }
    }

    void aFlatRowKeepsItsValueWhereItAloneShrinks() {
        const PlanarImage image =
            resample(drawn(4000, 4, 1, [](double, double) { return 255; }), 10, 4);
        QVERIFY(isFlat(image.planes[0], 255));
    }

    void samplesAreRoundedSumsOfLanczosKernel() {
        constexpr int kFrom = 90;
        constexpr int kTo = 60;
        const auto value = [](double x, double) {
            return 60 + static_cast<int>(x * kFrom) * 97 % 128; // Never beyond black or white.
        };
        std::vector<double> row;
        row.reserve(kFrom);
        for (int x = 0; x < kFrom; ++x) {
            row.push_back(value((x + .5) / kFrom, 0));
        }
        const PlanarImage image = resample(drawn(kFrom, 4, 1, value), kTo, 4);
        for (int x = 0; x < kTo; ++x) {
            const double wanted = lanczosSum(row, x, kTo);
            // Half a step of rounding, and what the weights lose to whole numbers.
            QVERIFY2(std::abs(image.planes[0].row(2)[x] - wanted) < 0.6,
                     qPrintable(u"%1: %2"_s.arg(x).arg(wanted)));
        }
    }

    void averagesOnTheWayAreRounded() {
        PlanarImage image(8, 8);
        image.addPlanes(1);
        Plane &plane = image.planes[0];
        std::fill_n(plane.row(0), plane.size(), std::uint8_t{11});
        for (int i = 0; i < 16; ++i) {
            plane.row(2 * (i / 4))[2 * (i % 4)] = 10; // The average of each square is 10.75.
        }
        QVERIFY(isFlat(resample(std::move(image), 2, 2).planes[0], 11));
    }

    void colorIsAveragedInSquaresOfTwo() {
        PlanarImage image(80, 80);
        for (int i = 0; i < 3; ++i) {
            image.planes.emplace_back(80, 80);
        }
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 80; ++x) {
                image.planes[1].row(y)[x] = y % 2 == 0 ? 100 : 200;
                image.planes[2].row(y)[x] = x % 2 == 0 ? 100 : 200;
            }
        }
        const PlanarImage target = resample(std::move(image), 80, 80);
        QVERIFY(isFlat(target.planes[1], 150));
        QVERIFY(isFlat(target.planes[2], 150));
    }

    void aRampStaysInItsPlace_data() {
        QTest::addColumn<int>("to");
        for (const int to : {21, 64, 100, 130, 255}) {
            QTest::addRow("%d", to) << to;
        }
    }

    void aRampStaysInItsPlace() {
        QFETCH(const int, to);
        const auto ramp = [](double x, double y) { return 40 + 100 * x + 60 * y; };
        const PlanarImage image = resample(drawn(256, 256, 3, ramp), to, to);
        for (const Plane &plane : image.planes) {
            // At the edges the kernel has nothing to lean on.
            const int edge = plane.width() / 10 + 1;
            for (int y = edge; y < plane.height() - edge; ++y) {
                for (int x = edge; x < plane.width() - edge; ++x) {
                    const double wanted = ramp((x + .5) / plane.width(), (y + .5) / plane.height());
                    QVERIFY2(std::abs(plane.row(y)[x] - wanted) < 2.5,
                             qPrintable(u"%1,%2"_s.arg(x).arg(y)));
                }
            }
        }
    }

    void smallerPlanesOfColorAreBroughtToHalf() {
        PlanarImage image(80, 80);
        image.planes.emplace_back(80, 80);
        image.planes.emplace_back(20, 80);
        image.planes.emplace_back(40, 40);
        for (Plane &plane : image.planes) {
            std::fill_n(plane.row(0), plane.size(), std::uint8_t{90});
        }
        const PlanarImage target = resample(std::move(image), 80, 80);
        for (std::size_t i = 1; i < 3; ++i) {
            const Plane &plane = target.planes[i];
            QCOMPARE(QSize(plane.width(), plane.height()), QSize(40, 40));
            QVERIFY(isFlat(plane, 90));
        }
    }
};

FOLIOFORGE_TEST(ResamplerTest)
#include "ResamplerTest.moc"
