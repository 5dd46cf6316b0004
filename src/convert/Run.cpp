// SPDX-License-Identifier: Apache-2.0

#include "convert/Run.h"

#include "compress/QuartzFilter.h"
#include "convert/OutputName.h"
#include "error/Error.h"
#include "files/TemporaryFolder.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

Run::Run(std::vector<PDFFileInfo> entries, ConversionOptions options, QString bundlePath,
         std::stop_token stop)
    : m_entries(std::move(entries))
    , m_options(std::move(options))
    , m_bundlePath(std::move(bundlePath))
    , m_stop(std::move(stop))
    , m_clearing(m_options.outputFolder, AbandonedParts::Kinds::Files) {}

void Run::convertAll(TemporaryFolder &temporaryFolder, RunObserver &observer) const {
    const std::size_t pdfs = m_options.merge ? 1 : m_entries.size();
    for (std::size_t first = 0; first < pdfs && !m_stop.stop_requested(); ++first) {
        observer.pdfBegins(first);
        RunResult result{first, createPDF(first, pathFor(first), observer), {}};
        const CloseResult &close = result.outcome.close;
        if (close.status == CloseResult::Status::Written && compresses()) {
            result.compression = compressInPlace(close.path, temporaryFolder, observer);
        }
        observer.pdfDone(result);
    }
}

QString Run::pathFor(std::size_t firstEntry) const {
    return m_options.merge
               ? mergedFilePath(m_options)
               : singleFilePath(m_options.outputFolder, m_entries.at(firstEntry).fileName());
}

PDFOutcome Run::createPDF(std::size_t firstEntry, const QString &path,
                          ConversionObserver &observer) const {
    // A name with a slash would lead to another folder than the one that was checked.
    if (m_options.merge && m_options.outputName.contains(u'/')) {
        return {{CloseResult::Status::Failed, {}, u"A file name cannot hold a slash"_s, {}}, {}};
    }
    std::vector<const PDFFileInfo *> entries;
    const std::size_t end = m_options.merge ? m_entries.size() : firstEntry + 1;
    for (std::size_t i = firstEntry; i < end; ++i) {
        entries.push_back(&m_entries.at(i));
    }
    return folioforge::createPDF(entries, path, m_options, &observer, m_stop);
}

CompressionOutcome Run::compress(const QString &path, const QString &temporaryFolder,
                                 ConversionObserver &observer, Flush flush) const {
    const QString filter = quartzFilterName(m_options.compressIndex);
    const CompressionOptions options{quartzFilterPath(m_bundlePath, filter),
                                     temporaryFolder,
                                     encryptionFor(m_options.security),
                                     m_options.calls,
                                     flush,
                                     m_stop};
    return folioforge::compress(path, options, [&](int pageIndex, int pageCount) {
        observer.endPageWrite(pageIndex, pageCount);
    });
}

/// Where the pass fails, the PDF stays as it was.
CompressionOutcome Run::compressInPlace(const QString &path, TemporaryFolder &temporaryFolder,
                                        ConversionObserver &observer) const {
    // Only the file that replaces the PDF is flushed.
    CompressionOutcome outcome = compress(path, temporaryFolder.path(), observer, Flush::Never);
    if (outcome.convertInfo) {
        try {
            StoppableCalls calls(m_options.calls, m_stop);
            putInPlace(*outcome.convertInfo, m_options.flush, calls);
        } catch (const Error &error) {
            outcome.error = error.reason();
        }
    }
    return outcome;
}

} // namespace folioforge
