// SPDX-License-Identifier: Apache-2.0

#include "strings/StringToolkit.h"
#include "LocaleCase.h"
#include "support/TestUnit.h"

#include <QRandomGenerator>
#include <QStringConverter>
#include <QTest>

#include <array>
#include <cstring>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A random string of whole characters, of every length of UTF-8.
std::u32string randomText(QRandomGenerator &random) {
    constexpr std::array<char32_t, 4> kLimits{0x80, 0x800, 0x10000, 0x110000};
    std::u32string text;
    for (int i = random.bounded(24); i > 0; --i) {
        char32_t character = 0xD800;
        while (QChar::isSurrogate(character)) {
            character = random.bounded(quint32(kLimits[random.bounded(4U)]));
        }
        text += character;
    }
    return text;
}

std::wstring wide(const std::u32string &text) {
    return {text.begin(), text.end()};
}

/// UTF-8 by Qt's own codec.
std::string utf8ByQt(const std::u32string &text) {
    QString utf16; // Not by fromUcs4(), which drops a byte order mark.
    for (const char32_t character : text) {
        utf16 += QChar::fromUcs4(character);
    }
    return QStringEncoder(QStringEncoder::Utf8).encode(utf16).operator QByteArray().toStdString();
}

bool isUtf8ByQt(const std::string &bytes) {
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(QByteArrayView(bytes));
    return !decode.hasError();
}

} // namespace

class StringToolkitTest : public QObject, protected LocaleCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void initTestCase() { buildLocale(); }

    // wstring_to_nsstring, string_to_nsstring

    void wideStringBecomesAString() {
        QCOMPARE(wstring_to_nsstring(L"a\u00E9\u20AC\U0001F600"), u"a\u00E9\u20AC\U0001F600"_s);
        QCOMPARE(wstring_to_nsstring(std::wstring(L"a\0b", 3)), QString::fromUtf16(u"a\0b", 3));
    }

    void inconvertibleWideStringBecomesAnEmptyString() {
        for (const wchar_t element : {wchar_t(0x110000), wchar_t(0xD800), wchar_t(0xDFFF)}) {
            const QString text = wstring_to_nsstring(std::wstring(L"ab") + element);
            QVERIFY(text.isEmpty());
            QVERIFY(!text.isNull());
        }
        QVERIFY(wstring_to_nsstring({}).isEmpty());
    }

    void byteStringBecomesAString() {
        QCOMPARE(string_to_nsstring("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"),
                 u"a\u00E9\u20AC\U0001F600"_s);
        QCOMPARE(string_to_nsstring(std::string("a\0b", 3)), QString::fromUtf16(u"a\0b", 3));
        QCOMPARE(string_to_nsstring("\xEF\xBB\xBFx"), u"\uFEFFx"_s);
        QVERIFY(!string_to_nsstring({}).isNull());
    }

    void bytesThatAreNotUtf8BecomeNoString() {
        QVERIFY(string_to_nsstring("a\xFF").isNull());
        QVERIFY(string_to_nsstring("a\xE2\x82").isNull());
        QVERIFY(string_to_nsstring("\xED\xA0\x80").isNull());
    }

    // NSStringToSTLString

    void stringBecomesUtf8UpToItsFirstZero() {
        std::string output = "before";
        NSStringToSTLString(u"\u20ACuro"_s, output);
        QCOMPARE(output, std::string("\xE2\x82\xACuro"));
        NSStringToSTLString(QString::fromUtf16(u"ab\0cd", 5), output);
        QCOMPARE(output, std::string("ab"));
        NSStringToSTLString(QString(), output);
        QCOMPARE(output, std::string());
    }

    void stringWithHalfAPairBecomesNoBytes() {
        const QString half = u"a"_s + QChar(u'\xD83D');
        std::string bytes = "before";
        NSStringToSTLString(half, bytes);
        QCOMPARE(bytes, std::string());
        std::wstring output = L"before";
        NSStringToSTLString(half, output);
        QVERIFY(output.empty());
    }

    void stringBecomesWideInAUtf8Locale() {
        const LocaleGuard locale(kUtf8Locale);
        QVERIFY(locale.selected());
        std::wstring output;
        // Five UTF-16 units, eleven bytes: the count of units is no limit.
        NSStringToSTLString(u"\u20AC\u20AC\u00E9\U0001F600"_s, output);
        QVERIFY(output == L"\u20AC\u20AC\u00E9\U0001F600");
    }

    void stringBeyondTheLocaleBecomesNoWideString() {
        std::wstring output = L"before";
        NSStringToSTLString(u"\u20AC"_s, output);
        QVERIFY(output.empty());
        NSStringToSTLString(u"plain"_s, output);
        QVERIFY(output == L"plain");
    }

    // _strupr

    void onlyAsciiLettersAreRaised() {
        std::string text = "abc-xyz-\xC3\xA9 ABZ `{[@ 09\x7F\x80\xFF";
        _strupr(text.data());
        QCOMPARE(text, std::string("ABC-XYZ-\xC3\xA9 ABZ `{[@ 09\x7F\x80\xFF"));
        std::string empty;
        _strupr(empty.data());
        QVERIFY(empty.empty());
    }

    void raisingStopsAtTheZero() {
        std::string text("ab\0cd", 5);
        _strupr(text.data());
        QCOMPARE(text, std::string("AB\0cd", 5));
    }

    // MultiBytesToWideChar

    void multiBytesAreEmptiedForNullAndForNothing() {
        std::wstring output = L"before";
        MultiBytesToWideChar(nullptr, output, 5);
        QVERIFY(output.empty());
        output = L"before";
        MultiBytesToWideChar("", output, 0);
        QVERIFY(output.empty());
    }

    void multiBytesThatAreInvalidEndEmpty() {
        const LocaleGuard locale(kUtf8Locale);
        std::wstring output = L"before";
        MultiBytesToWideChar("abc\xFF", output, 4);
        QVERIFY(output.empty());
    }

    void multiBytesIgnoreTheLengthWhenCounting_data() {
        QTest::addColumn<int>("length");
        for (const int length : {0, 1, 3, 100, -1}) {
            QTest::addRow("%d", length) << length;
        }
    }

    void multiBytesIgnoreTheLengthWhenCounting() {
        QFETCH(const int, length);
        const LocaleGuard locale(kUtf8Locale);
        std::wstring output;
        MultiBytesToWideChar("a\xC3\xA9\xE2\x82\xAC", output, length);
        QVERIFY(output == L"a\u00E9\u20AC");
    }

    void multiBytesAreReadInALatin1Locale() {
        qputenv("LOCPATH", m_locales.path().toUtf8());
        const LocaleGuard locale(kLatin1Locale);
        QVERIFY(locale.selected());
        std::wstring output;
        MultiBytesToWideChar("caf\xE9", output, 4);
        QVERIFY(output == L"caf\u00E9");
    }

    // WideCharToMultiBytes

    void wideNeedIsTheByteCountPlusOne() {
        const LocaleGuard locale(kUtf8Locale);
        QCOMPARE(WideCharToMultiBytes(nullptr, nullptr, 0), -1);
        std::array<char, 8> buffer{};
        QCOMPARE(WideCharToMultiBytes(nullptr, buffer.data(), 8), -1);
        QCOMPARE(WideCharToMultiBytes(L"a\u20AC", nullptr, 0), 5);
        QCOMPARE(WideCharToMultiBytes(L"", nullptr, 0), 1);
    }

    void wideTextFitsItsExactByteCountWithoutATerminator() {
        const LocaleGuard locale(kUtf8Locale);
        std::array<char, 6> buffer{};
        buffer.fill('#');
        QCOMPARE(WideCharToMultiBytes(L"a\u20AC", buffer.data(), 4), 0);
        QCOMPARE(QByteArray(buffer.data(), 6), QByteArray("a\xE2\x82\xAC##"));
    }

    void wideTextThatDoesNotFitWritesNothing() {
        const LocaleGuard locale(kUtf8Locale);
        std::array<char, 6> buffer{};
        buffer.fill('#');
        for (const std::int32_t size : {3, 0, -1}) {
            QCOMPARE(WideCharToMultiBytes(L"a\u20AC", buffer.data(), size), 5);
            QCOMPARE(QByteArray(buffer.data(), 6), QByteArray("######"));
        }
    }

    void wideEmptyTextWithABufferIsOneNotZero() {
        std::array<char, 2> buffer{'#', '#'};
        QCOMPARE(WideCharToMultiBytes(L"", buffer.data(), 2), 1);
        QCOMPARE(buffer[0], '#');
    }

    void wideTextBeyondTheLocaleWritesNothing() {
        std::array<char, 8> buffer{};
        buffer.fill('#');
        QCOMPARE(WideCharToMultiBytes(L"a\u20AC", nullptr, 0), 0);
        QCOMPARE(WideCharToMultiBytes(L"a\u20AC", buffer.data(), 8), 0);
        QCOMPARE(QByteArray(buffer.data(), 8), QByteArray("########"));
    }

    void wideTextThatBeginsWithTagsIsWrittenWithoutThem() {
        // ASCII has no bytes for tags, and the byte before the buffer is nobody's business.
        std::array<char, 4> buffer{};
        QCOMPARE(WideCharToMultiBytes(L"\U000E0041\U000E0041x", nullptr, 0), 2);
        QCOMPARE(WideCharToMultiBytes(L"\U000E0041\U000E0041x", buffer.data() + 1, 1), 0);
        QCOMPARE(QByteArray(buffer.data(), 4), QByteArray("\0x\0\0", 4));
        QCOMPARE(WideCharToMultiBytes(L"\U000E0041", buffer.data() + 1, 1), 1);
    }

    void wideTextIsWrittenInALatin1Locale() {
        qputenv("LOCPATH", m_locales.path().toUtf8());
        const LocaleGuard locale(kLatin1Locale);
        QVERIFY(locale.selected());
        std::array<char, 4> buffer{};
        QCOMPARE(WideCharToMultiBytes(L"caf\u00E9", buffer.data(), 4), 0);
        QCOMPARE(QByteArray(buffer.data(), 4), QByteArray("caf\xE9"));
        QCOMPARE(WideCharToMultiBytes(L"\u20AC", nullptr, 0), 0);
    }

    // utf8string_to_wstring, wstring_to_utf8string

    void utf8BecomesWide() {
        std::wstring output = L"before";
        utf8string_to_wstring("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", output);
        QVERIFY(output == L"a\u00E9\u20AC\U0001F600");
        utf8string_to_wstring({}, output);
        QVERIFY(output.empty());
        utf8string_to_wstring(std::string("a\0b", 3), output);
        QVERIFY(output == std::wstring(L"a\0b", 3));
    }

    void invalidUtf8LeavesTheOutput_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("lone byte") << QByteArray("a\xFF");
        QTest::newRow("truncated") << QByteArray("a\xE2\x82");
        QTest::newRow("in the middle") << QByteArray("a\xC3(b");
        QTest::newRow("overlong") << QByteArray("\xC0\xAF");
        QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80");
        QTest::newRow("beyond Unicode") << QByteArray("\xF4\x90\x80\x80");
        QTest::newRow("five bytes") << QByteArray("\xF8\x88\x80\x80\x80");
    }

    void invalidUtf8LeavesTheOutput() {
        QFETCH(const QByteArray, bytes);
        std::wstring output = L"before";
        utf8string_to_wstring(bytes.toStdString(), output);
        QVERIFY(output == L"before");
    }

    void wideBecomesUtf8OfOneToFourBytes() {
        std::string output = "before";
        wstring_to_utf8string(L"A\u00E9\u20AC\U0001F600", output);
        QCOMPARE(output, std::string("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
        wstring_to_utf8string({}, output);
        QVERIFY(output.empty());
        wstring_to_utf8string(std::wstring(L"a\0b", 3), output);
        QCOMPARE(output, std::string("a\0b", 3));
    }

    void invalidWideTextLeavesTheOutput() {
        for (const auto element : {0x110000, 0x200000, 0x7FFFFFFF, -1, 0xD800, 0xDBFF, 0xDFFF}) {
            std::string output = "before";
            wstring_to_utf8string(L"plain text" + std::wstring(1, wchar_t(element)), output);
            QCOMPARE(output, std::string("before"));
        }
    }

    void conversionsDoNotDependOnTheLocale() {
        for (const char *name : {"C", kUtf8Locale}) {
            const LocaleGuard locale(name);
            std::wstring output;
            utf8string_to_wstring("\xE2\x82\xAC", output);
            QVERIFY(output == L"\u20AC");
        }
    }

    void randomTextSurvivesAndAgreesWithQt() {
        QRandomGenerator random(20240229);
        for (int round = 0; round < 100'000; ++round) {
            const std::u32string text = randomText(random);
            const std::string bytes = utf8ByQt(text);
            std::string converted;
            wstring_to_utf8string(wide(text), converted);
            std::wstring back;
            utf8string_to_wstring(converted, back);
            if (converted != bytes || back != wide(text)) {
                QFAIL((QByteArray::fromStdString(bytes).toHex() + " became " +
                       QByteArray::fromStdString(converted).toHex())
                          .constData());
            }
        }
    }

    void randomBytesAreValidExactlyWhenQtSaysSo() {
        QRandomGenerator random(42);
        constexpr std::array<int, 14> kBytes{0x41, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF,
                                             0xC2, 0xE0, 0xED, 0xEF, 0xF0, 0xF4, 0xF5};
        for (int round = 0; round < 100'000; ++round) {
            std::string bytes;
            for (int i = random.bounded(1, 6); i > 0; --i) {
                bytes += char(kBytes[random.bounded(14U)]);
            }
            std::wstring output = L"before";
            utf8string_to_wstring(bytes, output);
            if ((output != L"before") != isUtf8ByQt(bytes)) {
                QFAIL(QByteArray::fromStdString(bytes).toHex().constData());
            }
        }
    }

    void hundredMegabytesAreConverted() {
        constexpr std::size_t kMany = 100'000'000;
        // NOLINTNEXTLINE(bugprone-string-constructor): so many on purpose
        const std::string bytes(kMany, 'x');
        std::wstring output;
        utf8string_to_wstring(bytes, output);
        QCOMPARE(output.size(), bytes.size());
        std::string back;
        wstring_to_utf8string(std::move(output), back);
        QVERIFY(back == bytes);
    }

    // UTF8_To_string

    void inertFunctionGivesNothing() {
        QVERIFY(UTF8_To_string("text").empty());
        QVERIFY(UTF8_To_string({}).empty());
    }

    // FindBoldString, FindItalicString

    void boldIsFoundAnywhereInAnyCase() {
        for (const char *name : {"Arial Bold", "Helvetica-Bd", "Abdul", "Demibold", "Abdomen",
                                 "BOLD", "bd", "xBoLdx"}) {
            QVERIFY2(FindBoldString(name), name);
        }
        for (const char *name : {"", "Arial", "Black", "B old", "Bol"}) {
            QVERIFY2(!FindBoldString(name), name);
        }
    }

    void italicIsFoundAnywhereInAnyCase() {
        for (const char *name : {"Times-Oblique", "Arial Italic", "XITALICX", "obLIQue"}) {
            QVERIFY2(FindItalicString(name), name);
        }
        for (const char *name : {"", "Slanted", "Ital", "Obliq"}) {
            QVERIFY2(!FindItalicString(name), name);
        }
    }

    void classifiersLeaveTheNameAlone() {
        const std::string name = "Arial bold italic";
        QVERIFY(FindBoldString(name.c_str()) && FindItalicString(name.c_str()));
        QCOMPARE(name, std::string("Arial bold italic"));
    }
};

FOLIOFORGE_TEST(StringToolkitTest)
#include "StringToolkitTest.moc"
