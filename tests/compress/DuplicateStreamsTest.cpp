// SPDX-License-Identifier: Apache-2.0

#include "CompressionCase.h"
#include "support/TestUnit.h"

using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kForm("/Type /XObject /Subtype /Form /BBox [0 0 90 20] ");

/// A page with a photo, and two streams alike as objects 8 and 9, which `pageKeys` refer to.
PdfFixture pageWithTwo(const QByteArray &streamKeys, const QByteArray &pageKeys) {
    const QByteArray data(2000, 'x');
    auto page = photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q", pageKeys);
    page.stream(8, streamKeys, data).stream(9, streamKeys, data);
    return page;
}

/// The same with forms for streams, and two buttons with `one` and `other` in their dictionaries.
PdfFixture pageWithButtons(const QByteArray &one, const QByteArray &other) {
    auto page = pageWithTwo(kForm, "/Annots [12 0 R 13 0 R]");
    const auto button = [](const QByteArray &keys) {
        return "<< /Type /Annot /Subtype /Widget /FT /Btn /T (Button) /Rect [10 240 90 260] /P 3 0 "
               "R " +
               keys + " >>";
    };
    page.object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [12 0 R 13 0 R] >> >>")
        .object(12, button(one))
        .object(13, button(other));
    return page;
}

} // namespace

/// Which streams become one in the copy when they are alike.
class DuplicateStreamsTest : public QObject, protected CompressionCase {
    Q_OBJECT

    /// How many streams of the copy have `entry` in their dictionary; the pass must have made it.
    qsizetype countInCopy(const QByteArray &entry) const {
        CompressionOutcome outcome;
        const QString copy = compressed(&outcome);
        return outcome.imagesReduced == 1 ? PdfProbe(copy).json().count(entry) : -1;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void equalImagesAreReducedOnce() {
        const QByteArray data = jpeg(photo(600, 450));
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do /Fm0 Do Q")
                    .stream(5, imageKeys(600, 450, kJpegRgb), data)
                    .stream(6, imageKeys(600, 450, kJpegRgb), data)
                    .write(m_path));
        QCOMPARE(countInCopy("\"/Subtype\": \"/Image\""), 1);
        QVERIFY(changeOf(compressed()) < 5);
    }

    void equalImagesWithEqualSoftMasksBecomeOne() {
        const QByteArray data = jpeg(photo(1200, 900));
        const auto keys = [](const QByteArray &mask) {
            return imageKeys(1200, 900, kJpegRgb + " /SMask " + mask);
        };
        QVERIFY(photoPage("q 288 0 0 216 50 20 cm /Im0 Do /Fm0 Do Q")
                    .stream(5, keys("8 0 R"), data)
                    .stream(6, keys("9 0 R"), data)
                    .stream(8, imageKeys(300, 225, kFlateGrey), opacity(300, 225))
                    .stream(9, imageKeys(300, 225, kFlateGrey), opacity(300, 225))
                    .write(m_path));
        QCOMPARE(countInCopy("\"/Subtype\": \"/Image\""), 2);
        QVERIFY(changeOf(compressed()) < 5);
    }

    void whatIsAlikeBecomesOneWhereNobodyEditsIt_data() {
        QTest::addColumn<QByteArray>("streamKeys");
        QTest::addColumn<QByteArray>("counted");
        QTest::addColumn<int>("left");
        QTest::newRow("font program")
            << QByteArray("/Length1 2000") << QByteArray("\"/Length1\"") << 1;
        QTest::newRow("CFF font program")
            << QByteArray("/Subtype /Type1C") << QByteArray("\"/Type1C\"") << 1;
        QTest::newRow("profile") << QByteArray("/N 3 /Alternate /DeviceRGB")
                                 << QByteArray("\"/Alternate\"") << 1;
        QTest::newRow("form") << kForm << QByteArray("\"/Form\"") << 1;
        QTest::newRow("metadata") << QByteArray("/Type /Metadata /Subtype /XML")
                                  << QByteArray("\"/Metadata\"") << 2;
        QTest::newRow("embedded file")
            << QByteArray("/Type /EmbeddedFile") << QByteArray("\"/EmbeddedFile\"") << 2;
        QTest::newRow("page contents") << QByteArray("/Own true") << QByteArray("\"/Own\"") << 2;
    }

    void whatIsAlikeBecomesOneWhereNobodyEditsIt() {
        QFETCH(const QByteArray, streamKeys);
        QFETCH(const QByteArray, counted);
        QFETCH(const int, left);
        writePage(pageWithTwo(streamKeys, "/PieceInfo << /One 8 0 R /Two [9 0 R] >>"));
        QCOMPARE(countInCopy(counted), left);
    }

    void appearancesOfTwoFieldsStayTwo_data() {
        QTest::addColumn<QByteArray>("one");
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("one state")
            << QByteArray("/AP << /N 8 0 R >>") << QByteArray("/AP << /N 9 0 R >>");
        QTest::newRow("a state of several") << QByteArray("/AS /On /AP << /N << /On 8 0 R >> >>")
                                            << QByteArray("/AS /On /AP << /N << /On 9 0 R >> >>");
        QTest::newRow("icon") << QByteArray("/MK << /I 8 0 R >>")
                              << QByteArray("/MK << /I 9 0 R >>");
    }

    void appearancesOfTwoFieldsStayTwo() {
        QFETCH(const QByteArray, one);
        QFETCH(const QByteArray, other);
        writePage(pageWithButtons(one, other));
        QCOMPARE(countInCopy("\"/Form\""), 2);
    }

    void formsWithinAppearancesStayTwo() {
        auto page = pageWithButtons("/AP << /N 10 0 R >>", "/AP << /N 11 0 R >>");
        page.stream(10, kForm + "/Resources << /XObject << /X 8 0 R >> >>", "/X Do")
            .stream(11, kForm + "/Resources << /XObject << /X 9 0 R >> >>", "/X Do");
        writePage(page);
        QCOMPARE(countInCopy("\"/Form\""), 4);
    }
};

FOLIOFORGE_TEST(DuplicateStreamsTest)
#include "DuplicateStreamsTest.moc"
