// SPDX-License-Identifier: Apache-2.0

#include "convert/Run.h"

#include "compress/QuartzFilter.h"
#include "convert/OutputName.h"
#include "convert/OutputPlan.h"
#include "convert/Verifying.h"
#include "error/Error.h"
#include "error/Reasons.h"
#include "files/PathNames.h"
#include "files/Printable.h"
#include "files/TemporaryFolder.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

Run::Run(std::vector<PDFFileInfo> entries, ConversionOptions options, QString bundlePath,
         std::stop_token stop)
    : m_entries(std::move(entries))
    , m_options(std::move(options))
    , m_bundlePath(std::move(bundlePath))
    , m_stop(std::move(stop)) {
    if (!m_options.dryRun) {
        m_clearing.emplace(m_options.outputFolder, AbandonedParts::Kinds::Files);
    }
}

void Run::convertAll(TemporaryFolder &temporaryFolder, RunObserver &observer, int jobs) {
    if (jobs > 1 && !m_options.merge) {
        convertSideBySide(temporaryFolder, observer, jobs);
        return;
    }
    OutputPlan plan(m_entries, m_options);
    for (std::size_t first = 0; hasEntry(first) && !m_stop.stop_requested();
         first = entriesOf(first).end) {
        observer.pdfBegins(first);
        const PlannedOutput output =
            plan.next(std::span(m_entries).subspan(first, entriesOf(first).end - first));
        RunResult result = makePDF(
            first, output, [&] { return temporaryFolder.path(); }, observer);
        if (!result.outcome.isWritten() && !result.kept) {
            plan.giveBack(output.path);
        }
        settle(result);
        observer.pdfDone(result);
    }
}

RunResult Run::makePDF(std::size_t firstEntry, const PlannedOutput &output,
                       const std::function<QString()> &temporaryFolder,
                       ConversionObserver &observer) const {
    using Action = PlannedOutput::Action;
    QElapsedTimer timer;
    timer.start();
    RunResult result;
    result.firstEntry = firstEntry;
    result.path = output.path;
    if (output.action == Action::Write) {
        result.outcome = writePDF(firstEntry, output.path, observer);
        if (result.outcome.isWritten() && compresses() && !m_options.dryRun) {
            result.compression =
                compressInPlace(result.outcome.close.path, temporaryFolder(), observer);
        }
        result.seconds = secondsOf(timer);
        return result;
    }
    const EntryRange range = entriesOf(firstEntry);
    result.kept = output.action == Action::Keep;
    EntryOutcome asPlanned; // The reason is the PDF's, not the entry's.
    asPlanned.written = true;
    result.outcome.entries.assign(range.end - range.first, asPlanned);
    result.outcome.close.reason =
        result.kept ? Reasons::tr("Its PDF is there and not older")
                    : Reasons::tr("Its PDF would take the place of an input, %1").arg(output.path);
    return result;
}

EntryRange Run::entriesOf(std::size_t firstEntry) const {
    return {firstEntry, m_options.merge ? m_entries.size() : firstEntry + 1};
}

QString Run::pathFor(std::size_t firstEntry) const {
    return outputPath(m_options, m_entries.at(firstEntry).fileName());
}

PDFOutcome Run::createPDF(std::size_t firstEntry, const QString &path,
                          ConversionObserver &observer) {
    RunResult result;
    result.path = path;
    result.outcome = writePDF(firstEntry, path, observer);
    settle(result);
    return std::move(result.outcome);
}

void Run::settle(RunResult &result) {
    if (result.kept) {
        return;
    }
    PDFOutcome &outcome = result.outcome;
    noteProblem(result.path, outcome.problem());
    count(outcome);
    Warnings &ofDocument = outcome.close.warnings;
    if (!m_documentWarned && !outcome.entries.empty()) {
        std::ranges::copy(ofDocument, std::back_inserter(outcome.entries.front().warnings));
        m_documentWarned = !ofDocument.empty();
    }
    ofDocument.clear();
}

void Run::count(const PDFOutcome &outcome) {
    if (!outcome.isWritten()) {
        ++m_summary.failedPDFs;
        return;
    }
    ++m_summary.madePDFs;
    m_summary.areVerified = m_options.verify;
    m_summary.pages += outcome.pages();
    m_summary.lastPath = outcome.close.path;
    m_summary.failedEntries +=
        static_cast<int>(std::ranges::count(outcome.entries, false, &EntryOutcome::written));
}

PDFOutcome Run::writePDF(std::size_t firstEntry, const QString &path,
                         ConversionObserver &observer) const {
    // A name with a slash would lead to another folder than the one that was checked.
    if (m_options.merge && m_options.outputName.contains(u'/')) {
        return {{CloseResult::Status::Failed,
                 {},
                 QCoreApplication::translate("Run", "A file name cannot hold a slash"),
                 {}},
                {}};
    }
    std::vector<const PDFFileInfo *> entries;
    const EntryRange range = entriesOf(firstEntry);
    for (std::size_t entry = range.first; entry < range.end; ++entry) {
        entries.push_back(&m_entries.at(entry));
    }
    return folioforge::createPDF(entries, path, m_options, &observer, m_stop);
}

CompressionOutcome Run::compressed(const QString &path, const QString &temporaryFolder,
                                   ConversionObserver &observer, Flush flush) const {
    const QString filter = quartzFilterName(m_options.compressIndex);
    const CompressionOptions options{quartzFilterPath(m_bundlePath, filter),
                                     temporaryFolder,
                                     encryptionFor(m_options.security),
                                     m_options.calls,
                                     flush,
                                     m_options.compressFilter,
                                     m_options.compressGrey,
                                     m_stop};
    CompressionOutcome outcome =
        folioforge::compress(path, options, [&](int pageIndex, int pageCount) {
            observer.endPageWrite(pageIndex, pageCount);
        });
    if (outcome.convertInfo) {
        outcome.error = verifyCopy(path, outcome.convertInfo->tempFilePathName, m_options, m_stop);
    }
    if (!outcome.error.isEmpty()) {
        outcome.convertInfo.reset();
    }
    return outcome;
}

CompressionOutcome Run::compress(const QString &path, const QString &temporaryFolder,
                                 ConversionObserver &observer, Flush flush) {
    CompressionOutcome outcome = compressed(path, temporaryFolder, observer, flush);
    if (!outcome.error.isEmpty()) {
        noteProblem(path,
                    QCoreApplication::translate("Run", "not compressed: %1").arg(outcome.error));
    }
    return outcome;
}

/// Where the pass fails, the PDF stays as it was.
CompressionOutcome Run::compressInPlace(const QString &path, const QString &temporaryFolder,
                                        ConversionObserver &observer) const {
    // Only the file that replaces the PDF is flushed.
    CompressionOutcome outcome = compressed(path, temporaryFolder, observer, Flush::Never);
    if (outcome.convertInfo) {
        try {
            StoppableCalls calls(m_options.calls, m_stop);
            putInPlace(*outcome.convertInfo, m_options.flush, calls);
        } catch (const Error &error) {
            outcome.error = error.reason();
        }
        outcome.convertInfo.reset();
    }
    return outcome;
}

void Run::compressCompleted(const ConvertInfo &convertInfo) {
    try {
        putInPlace(convertInfo, m_options.flush, m_options.calls);
    } catch (const Error &error) {
        noteProblem(convertInfo.destFilePathName, error.reason());
    }
}

void Run::noteProblem(const QString &path, const QString &problem) {
    if (!problem.isEmpty()) {
        // As it was asked for, where it would lead out of the folder, too.
        const QString folder = m_options.outputFolder + u'/';
        const QString name =
            path.startsWith(folder) ? path.sliced(folder.size()) : lastPathComponent(path);
        m_problems += u"    %1: %2"_s.arg(printable(name), problem);
    }
}

std::optional<Notice> Run::problems() const {
    if (m_problems.isEmpty()) {
        return std::nullopt;
    }
    return notice(
        QCoreApplication::translate("Run", "Something went wrong with these PDF documents:") +
        u"\r\n"_s + m_problems.join(u"\r\n"_s));
}

} // namespace folioforge
