// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfProbe.h"

#include <QTemporaryDir>
#include <QTest>

#include <clocale>
#include <string>

namespace folioforge::test {

inline constexpr const char *kUtf8Locale = "C.UTF-8";
inline constexpr const char *kLatin1Locale = "folio.ISO-8859-1";

/// Puts a locale in force for a test.
class LocaleGuard {
  public:
    explicit LocaleGuard(const char *name)
        : m_saved(std::setlocale(LC_ALL, nullptr))
        , m_selected(std::setlocale(LC_ALL, name) != nullptr) {}
    ~LocaleGuard() { std::setlocale(LC_ALL, m_saved.c_str()); }
    LocaleGuard(const LocaleGuard &) = delete;
    LocaleGuard &operator=(const LocaleGuard &) = delete;

    [[nodiscard]] bool selected() const { return m_selected; }

  private:
    std::string m_saved;
    bool m_selected = false;
};

inline std::string currentLocale() {
    return std::setlocale(LC_ALL, nullptr);
}

/// Locales that are built for the test alone.
class LocaleCase {
  protected:
    void buildLocale() {
        QVERIFY2(makeLocale("de_DE", "ISO-8859-1", kLatin1Locale),
                 "localedef cannot build the Latin-1 locale of these tests");
    }

    void setUp() {
        qunsetenv("LOCPATH");
        QVERIFY(std::setlocale(LC_ALL, "C") != nullptr);
    }

    QTemporaryDir m_locales;

    /// Builds a locale for this test alone.
    bool makeLocale(const char *source, const char *charset, const char *name) const {
        const auto run =
            runTool(QStringLiteral("localedef"),
                    {QStringLiteral("-i"), QString::fromLatin1(source), QStringLiteral("-f"),
                     QString::fromLatin1(charset), m_locales.filePath(QString::fromLatin1(name))});
        return run.exitCode == 0 || run.exitCode == 1; // 1: made, with warnings
    }
};

} // namespace folioforge::test
