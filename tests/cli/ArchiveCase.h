// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLineCase.h"
#include "support/InkProfile.h"

#include <QDir>
#include <QFileInfo>

namespace folioforge::test {

/// Documents for archives, and who judges them.
class ArchiveCase : protected CommandLineCase {
  protected:
    static QStringList standards() {
        return {QStringLiteral("1b"), QStringLiteral("2u"), QStringLiteral("2a"),
                QStringLiteral("3u"), QStringLiteral("3a")};
    }

    /// The data of a test that each standard has: a row for one.
    static void levels() {
        QTest::addColumn<QString>("standard");
        for (const QString &standard : standards()) {
            QTest::newRow(qPrintable(standard)) << standard;
        }
    }

    /// What tests/support/archive finds that a document breaks of a standard, a line each, and what
    /// it says where it fails.
    static QByteArray faultsOf(const QString &standard, const QStringList &files) {
        const ToolRun run = runTool(
            python(),
            QStringList{inSource(QStringLiteral("tests/support/archive/check-archive")), standard} +
                files);
        return run.exitCode == 0 || !run.out.isEmpty() ? run.out + run.err : "failed: " + run.err;
    }

    /// The arguments for a standard, with a profile for inks.
    QStringList archive(const QString &standard) const {
        return {QStringLiteral("--archive"), QStringLiteral("pdfa-") + standard,
                QStringLiteral("--cmyk-profile"), writeFile(path("inks.icc"), inkProfile())};
    }

    /// Pictures of every kind, each as other programs have written it.
    static QStringList pictures() {
        QStringList files;
        for (const QFileInfo &file :
             QDir(inSource(QStringLiteral("tests/data/image"))).entryInfoList(QDir::Files)) {
            files += file.filePath();
        }
        return files;
    }

    /// A text in twelve scripts, with characters that no font has and some that are not seen.
    QString scripts() const {
        return text(
            "scripts.txt",
            QStringLiteral(
                "English ﬁ é\nРусский\nΕλληνικά\nالعربية مُحَمَّد\nעברית\nहिन्दी क्षत्रिय\nไทย ที่\n中文\n"
                "日本語\n한국어\nதமிழ் கொ\nবাংলা কো\n\uE000 \uF8FF \u0378\n\uFEFF in\uFEFF side\n"
                "a\u0301\u0302 \u200B\u200D\u00AD|\n□ \uFFFD\n")
                    .toUtf8() +
                QByteArray("nul \0 and \x01 \x7F\n", 15));
    }

    QStringList outputPaths() const {
        QStringList paths;
        for (const QString &name : outputs()) {
            paths += path("out") + u'/' + name;
        }
        return paths;
    }
};

} // namespace folioforge::test
