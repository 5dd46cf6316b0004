// SPDX-License-Identifier: Apache-2.0

#include "text/TextDecoder.h"
#include "error/Error.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"
#include "text/TextEncoding.h"

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

    void aMarkThatDoesNotBeginTheFileIsACharacter() {
        QCOMPARE(decodeRest("\xEF\xBB\xBFword"), u"\uFEFFword"_s);
        QVERIFY(decodeRest("caf\xE9").isNull());
    }

    void textOfAnotherEncodingIsRead_data() {
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QString>("told"); // What "auto" finds; empty where it is certain.
        QTest::newRow("UTF-16 with its mark") << u"UTF-16"_s << QString();
        QTest::newRow("UTF-8") << u"UTF-8"_s << QString();
        QTest::newRow("UTF-32 with its mark") << u"UTF-32"_s << QString();
        QTest::newRow("Windows, Cyrillic") << u"windows-1251"_s << u"windows-1251"_s;
        QTest::newRow("Russian") << u"KOI8-R"_s << u"KOI8-R"_s;
    }
    void textOfAnotherEncodingIsRead() {
        QFETCH(const QString, encoding);
        QFETCH(const QString, told);
        const QString text =
            u"\u0421\u044A\u0435\u0448\u044C \u0436\u0435 \u0435\u0449\u0451 "
            u"\u044D\u0442\u0438\u0445 "
            "\u043C\u044F\u0433\u043A\u0438\u0445 \u0431\u0443\u043B\u043E\u043A, \u0434\u0430 "
            "\u0432\u044B\u043F\u0435\u0439 \u0447\u0430\u044E, \u043F\u043E\u0436\u0430\u043B\u0443\u0439\u0441\u0442\u0430."_s;
        const test::ToolRun iconv =
            test::runTool(u"iconv"_s, {u"-f"_s, u"UTF-8"_s, u"-t"_s, encoding}, text.toUtf8());
        QCOMPARE(iconv.exitCode, 0);
        QCOMPARE(decodeText(iconv.out, encoding).text, text);
        const DecodedText found = decodeText(iconv.out, u"auto"_s);
        QCOMPARE(found.text, text);
        QCOMPARE(found.guess, told);
    }

    void bytesOfAnotherEncodingThanIsNamedAreRefused() {
        const auto reason = [](QByteArrayView bytes, const QString &encoding) {
            try {
                return decodeText(bytes, encoding).text;
            } catch (const Error &error) {
                return error.reason();
            }
        };
        QCOMPARE(reason("a\xFF", u"UTF-8"_s), u"The text is not valid UTF-8"_s);
        QCOMPARE(reason(QByteArrayView("\xFF\xFE\x00\xD8", 4), u"auto"_s),
                 u"The text is not valid UTF-16LE"_s);
        QCOMPARE(reason(QByteArrayView("\x00\x01\xFF\x02\x80", 5), u"auto"_s),
                 u"The bytes do not tell the encoding of the text"_s);
        QCOMPARE(reason({}, u"auto"_s), QString());
        QVERIFY(!isTextEncoding(u"no-such-encoding"_s));
        QVERIFY(isTextEncoding(u"shift_jis"_s));
    }
};

FOLIOFORGE_TEST(TextDecoderTest)
#include "TextDecoderTest.moc"
