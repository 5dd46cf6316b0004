// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Conversion.h"
#include "convert/ConversionOptions.h"
#include "error/Notice.h"
#include "filelist/PDFFileInfo.h"
#include "files/AbandonedParts.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

namespace folioforge {

class TemporaryFolder;
struct PlannedOutput;

/// What became of one PDF of a run.
struct RunResult {
    std::size_t firstEntry = 0; ///< The position of its first entry in the run.
    QString path;               ///< Where it was to go.
    bool kept = false;          ///< The file there is not older and stays: nothing was written.
    PDFOutcome outcome;
    double seconds = 0; ///< How long the PDF took, from its first page to its place.
    std::optional<CompressionOutcome> compression; ///< Nothing where no pass ran.
};

/// How a run has gone so far.
struct RunSummary {
    int madePDFs = 0;
    int failedPDFs = 0;
    int failedEntries = 0;    ///< Of PDFs that were made without them.
    int pages = 0;            ///< Of all PDFs that were made.
    bool areVerified = false; ///< Each of their pages was held against its source.
    QString lastPath;         ///< Of the last PDF that was made.

    [[nodiscard]] bool hasFailures() const { return failedPDFs > 0 || failedEntries > 0; }
};

/// Hears how a run goes.
class RunObserver : public ConversionObserver {
  public:
    /// The PDF whose first entry is the run's entry `firstEntry` begins.
    virtual void pdfBegins(std::size_t firstEntry) = 0;
    /// A PDF is written and compressed, or has failed.
    virtual void pdfDone(const RunResult &result) = 0;
};

/// The entries of a run that become one PDF: those from `first` up to `end`.
struct EntryRange {
    std::size_t first = 0;
    std::size_t end = 0;
};

/// One run: the entries become PDFs in their order, one for each entry or, in merge mode, one of
/// all. Its steps may run on any thread, one after another.
///
/// convertAll() makes every PDF. The steps that it takes stand beside it for a front that has
/// something to do between them.
class Run {
  public:
    /// `bundlePath` holds the filters. Once `stop` is requested, every step ends at its next read,
    /// write, page or entry and leaves no file but whole ones. What killed runs left in the output
    /// folder is removed, unless the run is a dry one.
    Run(std::vector<PDFFileInfo> entries, ConversionOptions options, QString bundlePath,
        std::stop_token stop = {});

    [[nodiscard]] const ConversionOptions &options() const { return m_options; }

    /// Makes every PDF, one after another, or in single mode up to `jobs` at once, with names given
    /// beforehand. The observer hears of them in their order. Never throws: whatever fails is in
    /// the results.
    void convertAll(TemporaryFolder &temporaryFolder, RunObserver &observer, int jobs = 1);

    /// The entries of the PDF that begins with the entry at `firstEntry`. The next PDF begins with
    /// the entry at their end, and no PDF where that is behind the last.
    [[nodiscard]] EntryRange entriesOf(std::size_t firstEntry) const;
    [[nodiscard]] bool hasEntry(std::size_t entry) const { return entry < m_entries.size(); }
    /// A path for the PDF that begins with the entry at `firstEntry`; in single mode a free one.
    [[nodiscard]] QString pathFor(std::size_t firstEntry) const;
    /// Writes the PDF that begins with the entry at `firstEntry`, as the function of this name. A
    /// warning of the document is said of its first entry, and once in a run: what the file system
    /// does not do is the same for every PDF.
    [[nodiscard]] PDFOutcome createPDF(std::size_t firstEntry, const QString &path,
                                       ConversionObserver &observer);
    /// Whether the options ask for a compression pass.
    [[nodiscard]] bool compresses() const { return m_options.compresses(); }
    /// Compresses the PDF at `path` into `temporaryFolder`, as the function of this name.
    [[nodiscard]] CompressionOutcome compress(const QString &path, const QString &temporaryFolder,
                                              ConversionObserver &observer, Flush flush);
    /// Puts the copy of the pass in place. Where that fails, problems() says why, and the PDF is as
    /// it was.
    void compressCompleted(const ConvertInfo &convertInfo);
    /// What the steps so far have made.
    [[nodiscard]] const RunSummary &summary() const { return m_summary; }
    /// What went wrong with whole PDFs in the steps so far: one notice for all of them.
    [[nodiscard]] std::optional<Notice> problems() const;

  private:
    void convertSideBySide(TemporaryFolder &temporaryFolder, RunObserver &observer, int jobs);
    /// Makes the PDF that begins with the entry at `firstEntry`, on any thread; `temporaryFolder`
    /// is asked for where it is compressed.
    [[nodiscard]] RunResult makePDF(std::size_t firstEntry, const PlannedOutput &output,
                                    const std::function<QString()> &temporaryFolder,
                                    ConversionObserver &observer) const;
    /// Counts a PDF and sees to it that a warning of documents is said once.
    void settle(RunResult &result);
    [[nodiscard]] CompressionOutcome compressed(const QString &path, const QString &temporaryFolder,
                                                ConversionObserver &observer, Flush flush) const;
    [[nodiscard]] CompressionOutcome compressInPlace(const QString &path,
                                                     const QString &temporaryFolder,
                                                     ConversionObserver &observer) const;
    [[nodiscard]] PDFOutcome writePDF(std::size_t firstEntry, const QString &path,
                                      ConversionObserver &observer) const;
    void count(const PDFOutcome &outcome);
    void noteProblem(const QString &path, const QString &problem);

    std::vector<PDFFileInfo> m_entries;
    ConversionOptions m_options;
    QString m_bundlePath;
    std::stop_token m_stop;
    std::optional<AbandonedParts> m_clearing;
    bool m_documentWarned = false; ///< A warning of a document was handed over.
    QStringList m_problems;        ///< Lines of problems().
    RunSummary m_summary;
};

} // namespace folioforge
