// SPDX-License-Identifier: Apache-2.0

#include "LocaleCase.h"
#include "strings/StringToolkit.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <clocale>
#include <cstring>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// WideStringToMultiBytesString and MultiBytesStringToWideString, which select a locale.
class NamedLocaleTest : public QObject, protected LocaleCase {
    Q_OBJECT

  private:
    /// Builds a locale in `folder` that has characters but no other category, so that it cannot be
    /// selected for all of them.
    bool makePartialLocale(const QTemporaryDir &folder, const char *source, const char *charset,
                           const QString &name) const {
        return makeLocale(source, charset, "whole") && QDir(folder.path()).mkdir(name) &&
               QFile::copy(m_locales.filePath(u"whole/LC_CTYPE"_s),
                           folder.filePath(name + u"/LC_CTYPE"_s));
    }

  private Q_SLOTS:
    void initTestCase() { buildLocale(); }

    void init() { setUp(); }

    void withoutTheNamedLocaleTheCurrentOneConverts() {
        const LocaleGuard locale(kUtf8Locale);
        std::string output = "before";
        WideStringToMultiBytesString(L"\u00E9t\u00E9", output);
        QCOMPARE(output, std::string("\xC3\xA9t\xC3\xA9"));
        QCOMPARE(currentLocale(), std::string(kUtf8Locale));
    }

    void textOfMoreThanTwoBytesACharacterIsCutAtACharacter() {
        const LocaleGuard locale(kUtf8Locale);
        std::string output;
        // Four characters of three bytes in room for nine.
        WideStringToMultiBytesString(L"\u4E2D\u6587\u5B57\u7B26", output);
        QCOMPARE(output, std::string("\xE4\xB8\xAD\xE6\x96\x87\xE5\xAD\x97"));
        // One character of three bytes fills the whole room of three.
        WideStringToMultiBytesString(L"\u4E2D", output);
        QCOMPARE(output, std::string("\xE4\xB8\xAD"));
        // One of four bytes does not fit it.
        WideStringToMultiBytesString(L"\U0001F600", output);
        QCOMPARE(output, std::string());
    }

    void wideTextIsTakenUpToItsFirstZero() {
        std::string output = "before";
        WideStringToMultiBytesString(std::wstring(L"ab\0cd", 5), output);
        QCOMPARE(output, std::string("ab"));
        WideStringToMultiBytesString({}, output);
        QCOMPARE(output, std::string());
    }

    void wideTextIsTakenUpToWhatTheLocaleLacks() {
        std::string output = "before";
        WideStringToMultiBytesString(L"ab\u20ACcd", output);
        QCOMPARE(output, std::string("ab"));
    }

    void namedLocaleConvertsAndThePreviousOneComesBack() {
        QVERIFY(makeLocale("zh_CN", "GBK", "chs"));
        const LocaleGuard locale(kUtf8Locale);
        qputenv("LOCPATH", m_locales.path().toUtf8());
        std::string output;
        WideStringToMultiBytesString(L"\u4E2D\u6587", output);
        QCOMPARE(output, std::string("\xD6\xD0\xCE\xC4"));
        QCOMPARE(currentLocale(), std::string(kUtf8Locale));
    }

    void eachCategoryComesBack() {
        QVERIFY(makeLocale("zh_CN", "GBK", "chs"));
        const LocaleGuard locale(kUtf8Locale);
        qputenv("LOCPATH", m_locales.path().toUtf8());
        QVERIFY(std::setlocale(LC_NUMERIC, "C") != nullptr);
        const std::string mixed = currentLocale();
        QVERIFY(mixed != kUtf8Locale);
        std::string output;
        WideStringToMultiBytesString(L"\u4E2D", output);
        QCOMPARE(output, std::string("\xD6\xD0"));
        QCOMPARE(currentLocale(), mixed);
    }

    // The C library keeps what it has loaded from a folder, so these locales have folders of their
    // own.
    void namedLocaleThatLacksACategoryIsNotSelected() {
        const QTemporaryDir folder;
        QVERIFY(makePartialLocale(folder, "zh_CN", "GBK", u"chs"_s));
        const LocaleGuard locale(kUtf8Locale);
        qputenv("LOCPATH", folder.path().toUtf8());
        std::string output;
        WideStringToMultiBytesString(L"\u4E2D", output);
        QCOMPARE(output, std::string("\xE4\xB8\xAD"));
    }

    void environmentsLocaleThatLacksACategoryIsNotSelected() {
        const QTemporaryDir folder;
        QVERIFY(makePartialLocale(folder, "de_DE", "ISO-8859-1", u"partial"_s));
        qputenv("LOCPATH", folder.path().toUtf8());
        qputenv("LC_ALL", "partial");
        std::wstring output;
        MultiBytesStringToWideString("caf\xE9", output);
        QVERIFY(output == L"caf");
        qputenv("LC_ALL", kUtf8Locale);
    }

    void environmentsLocaleConvertsToWideAndCIsLeftBehind() {
        qputenv("LOCPATH", m_locales.path().toUtf8());
        qputenv("LC_ALL", kLatin1Locale);
        const LocaleGuard locale(kLatin1Locale);
        QVERIFY(locale.selected());
        std::wstring output = L"before";
        const char *left = MultiBytesStringToWideString("caf\xE9", output);
        QVERIFY(output == L"caf\u00E9");
        QCOMPARE(QByteArray(left), QByteArray("C"));
        QCOMPARE(currentLocale(), std::string("C"));
        qputenv("LC_ALL", kUtf8Locale);
    }

    void utf8EnvironmentConvertsUtf8() {
        qputenv("LC_ALL", kUtf8Locale);
        std::wstring output;
        MultiBytesStringToWideString("a\xE2\x82\xAC", output);
        QVERIFY(output == L"a\u20AC");
        MultiBytesStringToWideString(std::string("ab\0cd", 5), output);
        QVERIFY(output == L"ab");
        MultiBytesStringToWideString({}, output);
        QVERIFY(output.empty());
    }

    void invalidBytesEndTheWideText() {
        qputenv("LC_ALL", kUtf8Locale);
        std::wstring output = L"before";
        MultiBytesStringToWideString("ab\xFFzz", output);
        QVERIFY(output == L"ab");
        QCOMPARE(currentLocale(), std::string("C"));
    }
};

FOLIOFORGE_TEST(NamedLocaleTest)
#include "NamedLocaleTest.moc"
