// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Conversion.h"
#include "filelist/EntryReader.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

namespace folioforge::test {

/// Stops the run as soon as one entry is done.
class Stopper : public ConversionObserver {
  public:
    void progressChanged(float) override { source.request_stop(); }
    void entryDone(std::size_t, bool) override {}

    std::stop_source source;
};

/// A list of entries, and "out", where their PDFs go.
class ConversionCase {
  protected:
    void setUp() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out")));
        m_list.clear();
        m_options = {};
        m_options.outputFolder = path("out");
        m_options.flush = Flush::Never;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::vector<std::unique_ptr<PDFFileInfo>> m_list;
    ConversionOptions m_options;

    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    void addFile(const QString &file) { m_list.push_back(std::make_unique<PDFFileInfo>(file)); }
    /// The file as the list takes it, with what is learned of it there.
    void addListed(const QString &file) {
        const auto read = readEntries({file}, SourceReading::WhenWritten);
        m_list.push_back(std::make_unique<PDFFileInfo>(read.front().entry));
    }
    void addText(const char *name, const QByteArray &bytes) {
        addFile(writeFile(path(name), bytes));
    }
    PDFOutcome convertTo(const QString &target, ConversionObserver *observer = nullptr,
                         const std::stop_token &stop = {}) const {
        std::vector<const PDFFileInfo *> entries;
        for (const auto &entry : m_list) {
            entries.push_back(entry.get());
        }
        return createPDF(entries, target, m_options, observer, stop);
    }
    /// The path of the fixture as a file `name`; empty where it cannot be written.
    QString saved(const char *name, const PdfFixture &fixture) const {
        return fixture.write(path(name)) ? path(name) : QString();
    }
    /// The path of the PDF of the list, in which qpdf finds nothing wrong.
    QString converted(const char *name) const {
        const PDFOutcome outcome = convertTo(path(name));
        QString log = outcome.close.reason;
        if (!outcome.isWritten() || !PdfProbe(outcome.close.path).isValid(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return outcome.close.path;
    }
    QStringList outputs() const {
        return QDir(m_options.outputFolder).entryList(QDir::Files | QDir::Hidden);
    }
};

} // namespace folioforge::test
