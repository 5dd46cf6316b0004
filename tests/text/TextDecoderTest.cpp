// SPDX-License-Identifier: Apache-2.0

#include "text/TextDecoder.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

class TextDecoderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void validTextIsRead_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("ascii") << QByteArray("abc") << u"abc"_s;
        QTest::newRow("two bytes") << QByteArray("\xC3\xA9") << u"\u00E9"_s;
        QTest::newRow("three bytes") << QByteArray("\xE2\x82\xAC") << u"\u20AC"_s;
        QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x98\x80") << u"\U0001F600"_s;
        QTest::newRow("zero byte") << QByteArray("a\0b", 3) << QString::fromUtf16(u"a\0b", 3);
        QTest::newRow("mark at the start") << QByteArray("\xEF\xBB\xBFx") << u"x"_s;
        QTest::newRow("mark inside") << QByteArray("x\xEF\xBB\xBFy") << u"x\uFEFFy"_s;
        QTest::newRow("second mark") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF") << u"\uFEFF"_s;
        QTest::newRow("last character") << QByteArray("\xF4\x8F\xBF\xBF") << u"\U0010FFFF"_s;
        QTest::newRow("noncharacter") << QByteArray("\xEF\xBF\xBE") << QString(QChar(u'\xFFFE'));
    }

    void validTextIsRead() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QCOMPARE(decodeText(bytes), text);
        QVERIFY(!decodeText(bytes).isNull());
    }

    void emptyFileIsEmptyTextNotAbsentText() {
        QVERIFY(decodeText({}).isEmpty());
        QVERIFY(!decodeText({}).isNull());
        QVERIFY(!decodeText("\xEF\xBB\xBF").isNull());
        QVERIFY(decodeText("\xEF\xBB\xBF").isEmpty());
    }

    void invalidBytesGiveNoText_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("latin-1") << QByteArray("caf\xE9 noir");
        QTest::newRow("lone continuation") << QByteArray("a\x80");
        QTest::newRow("cut short at the end") << QByteArray("abc\xE2\x82");
        QTest::newRow("cut short inside") << QByteArray("\xE2\x82 abc");
        QTest::newRow("one lead byte alone") << QByteArray("\xF0");
        QTest::newRow("overlong slash") << QByteArray("\xC0\xAF");
        QTest::newRow("overlong three") << QByteArray("\xE0\x80\xAF");
        QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80");
        QTest::newRow("beyond the last character") << QByteArray("\xF4\x90\x80\x80");
        QTest::newRow("utf-16") << QByteArray("\xFF\xFE\x61\x00", 4);
        QTest::newRow("after much text") << QByteArray(100'000, 'x') + "\xFF";
    }

    void invalidBytesGiveNoText() {
        QFETCH(const QByteArray, bytes);
        QVERIFY(decodeText(bytes).isNull());
    }
};

FOLIOFORGE_TEST(TextDecoderTest)
#include "TextDecoderTest.moc"
