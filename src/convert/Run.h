// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Conversion.h"
#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "files/AbandonedParts.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <stop_token>
#include <vector>

namespace folioforge {

class TemporaryFolder;

/// What became of one PDF of a run.
struct RunResult {
    std::size_t firstEntry = 0; ///< The position of its first entry in the run.
    PDFOutcome outcome;
    std::optional<CompressionOutcome> compression; ///< Nothing where no pass ran.
};

/// Hears how a run goes.
class RunObserver : public ConversionObserver {
  public:
    /// The PDF whose first entry is the run's entry `firstEntry` begins.
    virtual void pdfBegins(std::size_t firstEntry) = 0;
    /// A PDF is written and compressed, or has failed.
    virtual void pdfDone(const RunResult &result) = 0;
};

/// One run: the entries become PDFs in their order, one for each entry or, in merge mode, one of
/// all. What it works with is fixed when it begins, so that its steps may run on any thread.
///
/// convertAll() makes every PDF. The steps that it takes stand beside it for a front that has
/// something to do between them.
class Run {
  public:
    /// `bundlePath` holds the filters. Once `stop` is requested, every step ends at its next read,
    /// write, page or entry and leaves no file but whole ones. What killed runs left in the output
    /// folder is removed.
    Run(std::vector<PDFFileInfo> entries, ConversionOptions options, QString bundlePath,
        std::stop_token stop = {});

    [[nodiscard]] const ConversionOptions &options() const { return m_options; }

    /// Makes every PDF, one after another. Never throws: whatever fails is in the results.
    void convertAll(TemporaryFolder &temporaryFolder, RunObserver &observer) const;

    /// A path for the PDF that begins with the entry at `firstEntry`; in single mode a free one.
    [[nodiscard]] QString pathFor(std::size_t firstEntry) const;
    /// Writes the PDF that begins with the entry at `firstEntry`, as the function of this name.
    [[nodiscard]] PDFOutcome createPDF(std::size_t firstEntry, const QString &path,
                                       ConversionObserver &observer) const;
    /// Whether the options ask for a compression pass.
    [[nodiscard]] bool compresses() const { return m_options.compressIndex != 0; }
    /// Compresses the PDF at `path` into `temporaryFolder`, as the function of this name.
    [[nodiscard]] CompressionOutcome compress(const QString &path, const QString &temporaryFolder,
                                              ConversionObserver &observer, Flush flush) const;

  private:
    [[nodiscard]] CompressionOutcome compressInPlace(const QString &path,
                                                     TemporaryFolder &temporaryFolder,
                                                     ConversionObserver &observer) const;

    std::vector<PDFFileInfo> m_entries;
    ConversionOptions m_options;
    QString m_bundlePath;
    std::stop_token m_stop;
    AbandonedParts m_clearing;
};

} // namespace folioforge
