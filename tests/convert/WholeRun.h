// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/QuartzFilter.h"
#include "convert/Run.h"
#include "files/TemporaryFolder.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PhotoPage.h"
#include "support/Places.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace folioforge::test {

/// A photo and a PDF in a folder, and runs that make a document of them through system calls that
/// may fail. One PDF alone is whole, so that none is parsed beside another and the calls come in
/// the same order each time.
class WholeRun {
  protected:
    /// What a run makes of the sources.
    struct Kind {
        bool merge = false;
        bool isProtected = false;
        int compressIndex = 0;
        bool tagged = false;
    };

    struct Outcome {
        bool written = false; ///< The document got its name, whatever became of its compression.
        QString reason;       ///< Why not all went well.
    };

    /// Hears what becomes of the one PDF of a run.
    struct OutcomeOfRun : RunObserver {
        void progressChanged(float) override {}
        void entryDone(std::size_t, bool) override {}
        void pdfBegins(std::size_t) override {}
        void pdfDone(const RunResult &result) override {
            const CloseResult &close = result.outcome.close;
            outcome = {close.status == CloseResult::Status::Written, close.reason};
            for (const EntryOutcome &entry : result.outcome.entries) {
                outcome.reason += entry.reason;
            }
            if (result.compression) {
                outcome.reason += result.compression->error;
            }
        }
        Outcome outcome;
    };

    struct Source {
        QString path;
        QByteArray bytes;
        QDateTime modified;
    };

    static inline const QString kPassword = QStringLiteral("open sesame");

    void setUp() {
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        for (const char *name : {"in", "out", "temporary", "bundle/Contents/Resources"}) {
            QVERIFY(QDir().mkpath(path(name)));
        }
        QVERIFY(QFile::copy(inSource(QStringLiteral("resources/filters/150m.qfilter")),
                            quartzFilterPath(path("bundle"), quartzFilterName(1))));
        QImage picture = photo(120, 80);
        constexpr int kDotsPerMeter = 23622; // 600 per inch
        picture.setDotsPerMeterX(kDotsPerMeter);
        picture.setDotsPerMeterY(kDotsPerMeter);
        QVERIFY(picture.save(path("in/photo.jpg"), "JPG", 95));
        addSource(path("in/photo.jpg"));
        addSource(writePdf(path("in/pages.pdf"), 2));
    }

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString output() const { return path("out/photo.pdf"); }

    void addSource(const QString &file) {
        m_sources.push_back({file, readFile(file), QFileInfo(file).lastModified()});
        m_entries.emplace_back(file);
    }

    ConversionOptions optionsOf(const Kind &kind, SystemCalls &calls) const {
        ConversionOptions options;
        options.outputFolder = path("out");
        options.merge = kind.merge;
        options.outputName = QStringLiteral("photo");
        options.compressIndex = kind.compressIndex;
        options.tagged = kind.tagged;
        options.security.useUserPassword = kind.isProtected;
        options.security.userPassword = kPassword;
        options.calls = calls;
        return options;
    }

    /// A run as the command line makes it.
    Outcome run(const Kind &kind, SystemCalls &calls, const std::stop_token &stop = {}) const {
        std::vector<PDFFileInfo> entries{m_entries.front()};
        if (kind.merge) {
            entries.push_back(m_entries.back());
        }
        return run(entries, kind, calls, stop);
    }

    Outcome run(const std::vector<PDFFileInfo> &entries, const Kind &kind, SystemCalls &calls,
                const std::stop_token &stop = {}) const {
        TemporaryFolder temporary(path("temporary"));
        Run run(entries, optionsOf(kind, calls), path("bundle"), stop);
        OutcomeOfRun observer;
        run.convertAll(temporary, observer);
        return observer.outcome;
    }

    bool sourcesAreUntouched() const {
        return std::all_of(m_sources.begin(), m_sources.end(), [](const Source &source) {
            return readFile(source.path) == source.bytes &&
                   QFileInfo(source.path).lastModified() == source.modified;
        });
    }

    /// The output that stands there, what it was before it was compressed, and what it is with one
    /// of two sources alone.
    QList<QByteArray> wholeOutputs(const Kind &kind) const {
        QList<QByteArray> whole{readFile(output())};
        if (kind.compressIndex != 0) {
            QFile::remove(output());
            Kind plain = kind;
            plain.compressIndex = 0;
            run(plain, SystemCalls::system());
            whole += readFile(output());
        }
        if (kind.merge) {
            for (const PDFFileInfo &entry : m_entries) {
                QFile::remove(output());
                run({entry}, kind, SystemCalls::system());
                whole += readFile(output());
            }
        }
        return whole;
    }

    /// The ways in which a file gets its name, from the best to the last.
    static void addWays() {
        QTest::addColumn<QStringList>("missing");
        const QString nameless = QStringLiteral("openAnonymous");
        const QString exclusive = QStringLiteral("renameExclusive");
        QTest::newRow("nameless file") << QStringList();
        QTest::newRow("rename") << QStringList{nameless};
        QTest::newRow("link") << QStringList{nameless, exclusive};
        QTest::newRow("held name") << QStringList{nameless, exclusive, QStringLiteral("link")};
    }

    static std::map<std::string, int> lacking(const QStringList &missing) {
        std::map<std::string, int> failing;
        for (const QString &call : missing) {
            failing[call.toStdString()] = EOPNOTSUPP;
        }
        return failing;
    }

    void clear() const {
        for (const QString &name : namesIn(path("out"))) {
            QFile::remove(path("out/") + name);
        }
    }

    static QStringList namesIn(const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                      QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
    std::vector<Source> m_sources;
    std::vector<PDFFileInfo> m_entries;
};

} // namespace folioforge::test
