// SPDX-License-Identifier: Apache-2.0

#include "text/PageSetup.h"
#include "support/TestUnit.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

const QString kTextMargin = u"Invalid page margin value in text output setting."_s;
const QString kImageMargin = u"Invalid page margin value in image output setting."_s;
const QString kTextWidth = u"The value of page margin is larger than page width, "
                           "please modify your text output setting."_s;
const QString kTextHeight = u"The value of page margin is larger than page height, "
                            "please modify your text output setting."_s;
const QString kImageWidth = u"The value of page margin is larger than page width, "
                            "please modify your image output setting."_s;
const QString kImageHeight = u"The value of page margin is larger than page height, "
                             "please modify your image output setting."_s;

/// The message of a notice; empty when the check passed.
QString messageOf(const std::optional<Notice> &result) {
    return result ? result->message : QString();
}

PageMargins margins(qint64 left, qint64 right, qint64 top, qint64 bottom) {
    return {left, right, top, bottom};
}

} // namespace

class PageSetupTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void numbersAreTheLeadingInteger_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("value");
        QTest::newRow("plain") << u"72"_s << qint64(72);
        QTest::newRow("zeros inside") << u"1002"_s << qint64(1002);
        QTest::newRow("empty") << QString() << qint64(0);
        QTest::newRow("words") << u"wide"_s << qint64(0);
        QTest::newRow("unit behind") << u"12pt"_s << qint64(12);
        QTest::newRow("colon behind") << u"12:30"_s << qint64(12);
        QTest::newRow("fraction") << u"36.9"_s << qint64(36);
        QTest::newRow("blanks in front") << u"  5"_s << qint64(5);
        QTest::newRow("minus") << u"-1"_s << qint64(-1);
        QTest::newRow("plus") << u"+8"_s << qint64(8);
        QTest::newRow("sign alone") << u"-"_s << qint64(0);
        QTest::newRow("nearly the largest")
            << u"9223372036854775805"_s << qint64(9223372036854775805);
        QTest::newRow("largest") << u"9223372036854775807"_s << std::numeric_limits<qint64>::max();
        QTest::newRow("too large")
            << u"99999999999999999999"_s << std::numeric_limits<qint64>::max();
        QTest::newRow("too small")
            << u"-99999999999999999999"_s << std::numeric_limits<qint64>::min();
    }

    void numbersAreTheLeadingInteger() {
        QFETCH(const QString, text);
        QFETCH(const qint64, value);
        QCOMPARE(integerValue(text), value);
    }

    void textPageSizesAreIsoSizesInWholePoints() {
        PageSetup setup;
        setup.customWidth = 300;
        setup.customHeight = -4;
        const QList<std::pair<int, QSizeF>> sizes{{0, {842, 1191}}, {1, {595, 842}},
                                                  {2, {420, 595}},  {3, {300, -4}},
                                                  {4, {0, 0}},      {-1, {0, 0}}};
        for (const auto &[row, size] : sizes) {
            setup.sizeMode = row;
            QCOMPARE(getTextPageSize(setup), size);
        }
    }

    void imagePageSizeIsZeroUnlessCustom() {
        PageSetup setup;
        setup.customWidth = 300;
        setup.customHeight = 200;
        const QList<std::pair<int, QSizeF>> sizes{
            {0, {0, 0}}, {1, {300, 200}}, {2, {0, 0}}, {-1, {0, 0}}};
        for (const auto &[row, size] : sizes) {
            setup.sizeMode = row;
            QCOMPARE(getImagePageSize(setup), size);
        }
    }

    void textMarginsUpTo256AreAccepted() {
        QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageA4, 0, 0, margins(256, 0, 0, 0)})),
                 QString());
    }

    void textMarginsOutOfRangeAreRefused_data() {
        QTest::addColumn<qint64>("value");
        QTest::newRow("257") << qint64(257);
        QTest::newRow("-1") << qint64(-1);
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min();
    }

    void textMarginsOutOfRangeAreRefused() {
        QFETCH(const qint64, value);
        for (const PageMargins &bad : {margins(value, 0, 0, 0), margins(0, value, 0, 0),
                                       margins(0, 0, value, 0), margins(0, 0, 0, value)}) {
            QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageA4, 0, 0, bad})), kTextMargin);
        }
    }

    void theNoticeIsTitledNotice() {
        const auto result = checkTextPageSizeSettings({TextPageA4, 0, 0, margins(257, 0, 0, 0)});
        QVERIFY(result);
        QCOMPARE(result->title, u"Notice"_s);
    }

    void twoBadMarginsGiveOneNotice() {
        QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageA4, 0, 0, margins(300, 0, 300, 0)})),
                 kTextMargin);
    }

    void marginsAreCheckedBeforeThePageSize() {
        QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageCustom, 0, 0, margins(0, 0, 0, -1)})),
                 kTextMargin);
    }

    void textMarginsAsWideAsThePageAreRefused() {
        QCOMPARE(
            messageOf(checkTextPageSizeSettings({TextPageCustom, 100, 500, margins(50, 50, 0, 0)})),
            kTextWidth);
        QCOMPARE(
            messageOf(checkTextPageSizeSettings({TextPageCustom, 101, 500, margins(50, 50, 0, 0)})),
            QString());
    }

    void textMarginsAsHighAsThePageAreRefused() {
        QCOMPARE(
            messageOf(checkTextPageSizeSettings({TextPageCustom, 500, 100, margins(0, 0, 50, 50)})),
            kTextHeight);
    }

    void aCustomSizeOfZeroFailsByWidthFirst() {
        QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageCustom, 0, 0, {}})), kTextWidth);
        QCOMPARE(messageOf(checkTextPageSizeSettings({TextPageCustom, 9, -7, {}})), kTextHeight);
    }

    void anImagePageThatFollowsTheImageHasNoSizeToCheck() {
        for (const int row : {int{ImagePageFollowsImage}, 2, -1}) {
            QCOMPARE(
                messageOf(checkImagePageSizeSettings({row, -5, 0, margins(256, 256, 256, 256)})),
                QString());
        }
    }

    void imageMarginsAreCheckedInEveryMode() {
        QCOMPARE(messageOf(checkImagePageSizeSettings(
                     {ImagePageFollowsImage, 0, 0, margins(0, 257, 0, 0)})),
                 kImageMargin);
    }

    void customImagePagesNeedRoomBetweenTheMargins() {
        QCOMPARE(messageOf(
                     checkImagePageSizeSettings({ImagePageCustom, 20, 100, margins(10, 10, 0, 0)})),
                 kImageWidth);
        QCOMPARE(messageOf(
                     checkImagePageSizeSettings({ImagePageCustom, 100, 20, margins(0, 0, 10, 10)})),
                 kImageHeight);
        QCOMPARE(messageOf(checkImagePageSizeSettings(
                     {ImagePageCustom, 21, 21, margins(10, 10, 10, 10)})),
                 QString());
    }
};

FOLIOFORGE_TEST(PageSetupTest)
#include "PageSetupTest.moc"
