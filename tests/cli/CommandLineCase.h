// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/Python.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

#include <unistd.h>

namespace folioforge::test {

inline const QString kProgram = commandLineProgram();

/// What the report `output` tells of each input, without its head.
inline QList<QJsonObject> objectsOf(const QByteArray &output) {
    QList<QJsonObject> objects;
    for (const QByteArray &line : output.split('\n')) {
        if (!line.isEmpty()) {
            objects += QJsonDocument::fromJson(line).object();
        }
    }
    return objects.sliced(std::min<qsizetype>(1, objects.size()));
}

inline QString member(const QJsonObject &object, const char *name) {
    return object[QLatin1StringView(name)].toString();
}

/// A folder with inputs and "out", where the program puts what it makes of them.
class CommandLineCase {
  protected:
    void setUp() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out")));
    }

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    QString text(const char *name, const QByteArray &bytes = "words") const {
        return writeFile(path(name), bytes);
    }

    /// Runs the program with its output folder set to "out" of the test's folder.
    ToolRun convert(const QStringList &arguments, const QByteArray &input = {}) const {
        return runTool(kProgram,
                       QStringList{QStringLiteral("--output-folder"), path("out")} + arguments,
                       input);
    }

    /// Runs a line of a shell in the test's folder, with the programs of a folder on the PATH.
    ToolRun shell(const QByteArray &line,
                  const QString &programs = QFileInfo(kProgram).path()) const {
        const QString script =
            QStringLiteral("cd \"$1\" && PATH=$2:$PATH SECRET=word && export PATH SECRET && "
                           "set -o pipefail && eval \"$3\"");
        return runTool(QStringLiteral("bash"),
                       {QStringLiteral("-c"), script, QStringLiteral("bash"), m_folder->path(),
                        programs, QString::fromUtf8(line)});
    }

    /// The lines of a page, of the whole document for 0, without those that are empty.
    static QStringList linesOf(const PdfProbe &pdf, int page = 0) {
        QStringList lines;
        for (const QString &line : pdf.text(page).remove(u'\f').split(u'\n', Qt::SkipEmptyParts)) {
            lines += line.simplified();
        }
        return lines;
    }

    /// How many bands of a page, from edge to edge, have something on them and white between them.
    static int bandsOf(const QImage &shown) {
        const QImage page = shown.convertToFormat(QImage::Format_Grayscale8);
        int bands = 0;
        bool wasBlank = true;
        for (int y = 0; y < page.height(); ++y) {
            const auto *line = page.constScanLine(y);
            const bool isBlank =
                std::all_of(line, line + page.width(), [](uchar pixel) { return pixel > 200; });
            bands += wasBlank && !isBlank ? 1 : 0;
            wasBlank = isBlank;
        }
        return bands;
    }

    /// The bookmarks of the document at `name`, as mutool shows them.
    QByteArray outlineOf(const char *name) const {
        return runTool(QStringLiteral("mutool"),
                       {QStringLiteral("show"), path(name), QStringLiteral("outline")})
            .out;
    }

    ToolRun merge(const char *target, const QStringList &arguments,
                  const QByteArray &input = {}) const {
        return runTool(kProgram, QStringList{QStringLiteral("--merge"), path(target)} + arguments,
                       input);
    }

    /// The bytes of the document that `arguments` merged into while the descriptors `closed` were;
    /// empty where the program did not end with `exitCode`.
    QByteArray merged(const char *target, const QStringList &arguments, const QList<int> &closed,
                      int exitCode) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1700000000"));
        process.setProcessEnvironment(environment);
        process.setChildProcessModifier([&closed] {
            for (const int descriptor : closed) {
                ::close(descriptor);
            }
        });
        process.start(kProgram, QStringList{QStringLiteral("--merge"), path(target)} + arguments);
        const bool ended = process.waitForFinished() && process.exitCode() == exitCode;
        return ended ? readFile(path(target)) : QByteArray();
    }

    QStringList outputs() const {
        return QDir(path("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

} // namespace folioforge::test
