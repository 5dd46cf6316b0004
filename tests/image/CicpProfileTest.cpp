// SPDX-License-Identifier: Apache-2.0

#include "image/CicpProfile.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Profiles of colours by numbers, as ImageMagick's colour management reads them.
class CicpProfileTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void screensAgreeOnWhatTheProfileMeans_data() {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("seen");
        // What of Display P3 is the red and the green of sRGB.
        QTest::newRow("red") << u"rgb(234,51,35)"_s << u"255,0,0"_s;
        QTest::newRow("green") << u"rgb(117,251,76)"_s << u"0,255,0"_s;
        QTest::newRow("grey") << u"rgb(128,128,128)"_s << u"128,128,128"_s;
        QTest::newRow("white") << u"rgb(255,255,255)"_s << u"255,255,255"_s;
    }

    void screensAgreeOnWhatTheProfileMeans() {
        QFETCH(const QString, given);
        QFETCH(const QString, seen);
        const QTemporaryDir folder;
        const QString wide = writeFile(folder.filePath(u"wide.icc"_s), profileOf(kDisplayP3));
        const QString usual =
            writeFile(folder.filePath(u"usual.icc"_s), QColorSpace(QColorSpace::SRgb).iccProfile());
        const QByteArray pixel =
            runTool(u"convert"_s,
                    {u"-size"_s, u"1x1"_s, u"xc:"_s + given, u"-profile"_s, wide, u"-intent"_s,
                     u"relative"_s, u"-profile"_s, usual, u"-depth"_s, u"8"_s, u"rgb:-"_s})
                .out;
        QCOMPARE(pixel.size(), 3);
        const QStringList expected = seen.split(u',');
        for (qsizetype i = 0; i < 3; ++i) {
            QVERIFY2(qAbs(static_cast<uchar>(pixel[i]) - expected[i].toInt()) <= 4,
                     pixel.toHex().constData());
        }
    }

    void usualAndUnknownColorsNeedNone() {
        CicpColor color = kDisplayP3;
        color.primaries = 1;
        QVERIFY(profileOf(color).isEmpty());
        color.transfer = 6; // That of television counts as that of screens.
        QVERIFY(profileOf(color).isEmpty());
        color.primaries = 2;
        QVERIFY(profileOf(color).isEmpty());
    }

    void pointsThatSpanNoColorsGiveNone() {
        CicpColor color = kDisplayP3;
        color.points[1] = color.points[0];
        QVERIFY(profileOf(color).isEmpty());
        color.points[1] = {0.3, 0};
        QVERIFY(profileOf(color).isEmpty());
        color.points[1] = {0.3, std::numeric_limits<double>::quiet_NaN()};
        QVERIFY(profileOf(color).isEmpty());
    }

  private:
    static constexpr CicpColor kDisplayP3{
        {{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, {0.3127, 0.3290}}}, 12, 13};
};

FOLIOFORGE_TEST(CicpProfileTest)
#include "CicpProfileTest.moc"
