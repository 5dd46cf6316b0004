// SPDX-License-Identifier: Apache-2.0

#include "convert/Conversion.h"

#include "convert/FailureReason.h"
#include "convert/PageWriters.h"
#include "convert/PicturesAhead.h"
#include "convert/SourceType.h"
#include "convert/Verifying.h"
#include "error/Error.h"
#include "error/Reasons.h"
#include "files/PathNames.h"
#include "files/SourceFile.h"
#include "files/SystemCalls.h"
#include "pdf/import/LeftParts.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

void addPages(const PDFFileInfo &entry, PDFContext &context, const ConversionOptions &options,
              PicturesAhead &pictures, const std::stop_token &stop, EntryOutcome &outcome,
              EntryRecord *record) {
    const PDFContext::Mark before = context.mark();
    const FileVersion file = options.archive && options.archive->embedSources
                                 ? FileVersion::of(entry.filePathName())
                                 : FileVersion();
    if (entry.kind() != FileKind::Pdf) {
        context.beginSource(entry.fileName());
    }
    QByteArray type = "text/plain";
    switch (entry.kind()) {
    case FileKind::Text:
        outcome.warnings = addTextPage(entry, context, options, stop, record);
        break;
    case FileKind::Pdf: {
        AddedDocument document = addPDFFile(entry, context, record);
        type = "application/pdf";
        outcome.parts = std::move(document.parts);
        outcome.warnings = std::move(document.warnings);
        break;
    }
    case FileKind::Image:
    case FileKind::FurtherImage:
    case FileKind::Other: {
        WrittenImage image = addImagePages(entry, context, options, pictures, record);
        type = mimeTypeOf(image.kind);
        outcome.embeddedAs = image.embeddedAs;
        outcome.warnings = std::move(image.warnings);
        break;
    }
    }
    if (options.archive && options.archive->embedSources) {
        context.attachSource({file, entry.fileName(), type}, before);
    }
    // A failure that shows only now is this entry's too.
    context.waitForPages();
    const Warnings sizes = context.checkPagesAfter(before.pages);
    outcome.warnings.insert(outcome.warnings.end(), sizes.begin(), sizes.end());
}

EntryOutcome writeEntry(const PDFFileInfo &entry, PDFContext &context,
                        const ConversionOptions &options, PicturesAhead &pictures,
                        const std::stop_token &stop, EntryRecord &record) {
    QElapsedTimer timer;
    timer.start();
    EntryOutcome outcome;
    const PDFContext::Mark before = context.mark();
    const QString failure = reasonOfFailure([&] {
        addPages(entry, context, options, pictures, stop, outcome,
                 options.keepsRecord() ? &record : nullptr);
    });
    outcome.written = failure.isEmpty();
    if (!outcome.written) {
        context.rollBack(before);
        record = {};
        outcome = {};
        outcome.reason = failure;
    }
    outcome.pages = context.pageCount() - before.pages;
    record.firstPage = before.pages;
    record.pages = outcome.pages;
    outcome.seconds = secondsOf(timer);
    if (options.dryRun) {
        outcome.pageSize = outcome.pages > 0 ? context.pageSize(before.pages) : QSizeF(0, 0);
    }
    return outcome;
}

/// Whether texts and pictures are to be tagged because a PDF among the sources is.
bool isAmongTagged(std::span<const PDFFileInfo *const> entries) {
    const auto isPdf = [](const PDFFileInfo *entry) { return entry->kind() == FileKind::Pdf; };
    return !std::ranges::all_of(entries, isPdf) &&
           std::ranges::any_of(entries, &PDFFileInfo::isTagged);
}

/// The PDFs of which all pages are taken.
std::vector<QString> wholePdfs(std::span<const PDFFileInfo *const> entries) {
    std::vector<QString> paths;
    for (const PDFFileInfo *entry : entries) {
        if (entry->kind() == FileKind::Pdf && entry->pageChoice().range.isEmpty()) {
            paths.push_back(entry->filePathName());
        }
    }
    return paths;
}

/// How the pages that are drawn for the PDF at `path` are tagged; nothing where they are not.
std::optional<TagOptions> tagOptions(std::span<const PDFFileInfo *const> entries,
                                     const QString &path, const ConversionOptions &options) {
    // The elements of pages that are drawn stand in object streams, which part 1 does not know.
    if (options.archive && partOf(options.archive->level) == 1) {
        return std::nullopt;
    }
    const bool isAsked = options.tagged || options.accessible ||
                         (options.archive && isTagged(options.archive->level));
    if (!isAsked) {
        return isAmongTagged(entries) ? std::optional(TagOptions{options.language, {}, false})
                                      : std::nullopt;
    }
    const QString name =
        options.merge || entries.empty() ? lastPathComponent(path) : entries.front()->fileName();
    return TagOptions{options.language, withoutExtension(name), options.accessible};
}

/// Names the sources without structure tags where others have some.
Warnings namePartlyTagged(std::span<const PDFFileInfo *const> entries,
                          const std::vector<EntryOutcome> &outcomes, bool drawnAreTagged) {
    constexpr qsizetype kNames = 5;
    QStringList untagged;
    bool tagged = false;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        const auto &parts = outcomes[i].parts;
        const bool isTagged = parts ? parts->carried.contains(PartKind::StructureElements)
                                    : drawnAreTagged && outcomes[i].pages > 0;
        tagged = tagged || isTagged;
        if (outcomes[i].pages > 0 && !isTagged) {
            untagged += entries[i]->fileName();
        }
    }
    if (!tagged || untagged.isEmpty()) {
        return {};
    }
    const auto more = static_cast<int>(untagged.size() - kNames);
    const QString names = Reasons::listed(untagged.first(std::min(kNames, untagged.size())));
    return {{WarningCode::PartlyTagged,
             Reasons::tr("Not all of the PDF is tagged, as these are not: %1")
                 .arg(more > 0 ? Reasons::tr("%1 and %n more", nullptr, more).arg(names) : names)}};
}

/// Names for each entry what it brought and could not be for all of the document together.
void leaveInTheEnd(const std::vector<PartKind> &kinds, std::vector<EntryOutcome> &entries) {
    for (EntryOutcome &entry : entries) {
        if (!entry.parts) {
            continue;
        }
        PartCounts left;
        for (const PartKind kind : kinds) {
            if (const auto found = entry.parts->carried.extract(kind)) {
                left.insert({kind, found.mapped()});
                addParts(entry.parts->left, kind, found.mapped());
            }
        }
        std::ranges::copy(namePartsLeft(left), std::back_inserter(entry.warnings));
    }
}

/// Writes headers and footers, which may name the number of all pages.
void addAllMarginTexts(std::span<const PDFFileInfo *const> entries, PDFContext &context,
                       const ConversionOptions &options, const std::stop_token &stop,
                       std::vector<EntryOutcome> &outcomes, DocumentRecord &record) {
    if (!options.readable || !options.readable->hasMarginTexts()) {
        return;
    }
    int first = 0;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        EntryOutcome &outcome = outcomes[i];
        if (entries[i]->kind() == FileKind::Text) {
            std::ranges::move(addMarginTexts(*entries[i], first, outcome.pages, context, options,
                                             stop, options.keepsRecord() ? &record[i] : nullptr),
                              std::back_inserter(outcome.warnings));
        }
        first += outcome.pages;
    }
}

void attachManifest(std::span<const PDFFileInfo *const> entries, PDFContext &context,
                    const ConversionOptions &options, const std::vector<EntryOutcome> &outcomes) {
    if (options.attachedManifest && context.pageCount() > 0 && !options.dryRun) {
        context.attachData(u"manifest.json"_s, "application/json",
                           options.attachedManifest(entries, outcomes));
    }
}

CloseResult notWritten(const QString &reason) {
    return {CloseResult::Status::Failed, {}, reason, {}};
}

/// Holds the pages of a dry run against the PDF that they are to be found in.
CloseResult closeFound(const DocumentRecord &record, const ConversionOptions &options,
                       const std::stop_token &stop, std::vector<EntryOutcome> &entries) {
    const QString failure = reasonOfFailure([&] { verifyFound(record, options, stop, entries); });
    return failure.isEmpty() ? CloseResult{CloseResult::Status::Written, options.verifyOnly, {}, {}}
                             : notWritten(failure);
}

CloseResult closeContext(PDFContext &context, const QString &path, const QString &fileName,
                         const ConversionOptions &options, const Inspection &inspect) {
    if (context.pageCount() == 0) {
        return notWritten(Reasons::tr("There is no page to write"));
    }
    if (options.dryRun) {
        return {CloseResult::Status::Written, path, {}, {}};
    }
    std::function<QString()> nextPath;
    if (!options.merge) {
        nextPath = [&] { return singleFilePath(options.outputFolder, fileName); };
    }
    CloseResult result;
    const QString failure = reasonOfFailure([&] { result = context.close(nextPath, inspect); });
    return failure.isEmpty() ? result : notWritten(failure);
}

} // namespace

void ConversionObserver::endPageWrite(int pageIndex, int pageCount) {
    progressChanged(compressionProgress(pageIndex, pageCount));
}

QStringList EntryOutcome::remarks() const {
    QStringList remarks;
    if (!reason.isEmpty()) {
        remarks += reason;
    }
    for (const Warning &warning : warnings) {
        remarks += warning.text;
    }
    return remarks;
}

int PDFOutcome::pages() const {
    return std::accumulate(entries.begin(), entries.end(), 0,
                           [](int sum, const EntryOutcome &entry) { return sum + entry.pages; });
}

QString PDFOutcome::problem() const {
    const bool entriesSayWhy = !entries.empty() && pages() == 0;
    return entriesSayWhy ? QString() : close.reason;
}

std::unique_ptr<Encryption> encryptionFor(const SecuritySettings &security) {
    if (!security.useUserPassword && !security.useOwnerPassword) {
        return nullptr;
    }
    auto encryption = std::make_unique<Encryption>();
    if (security.useUserPassword) {
        encryption->userPassword = security.userPassword;
    }
    if (security.useOwnerPassword) {
        encryption->ownerPassword = security.ownerPassword;
        encryption->refusePrint = security.refusePrint;
        encryption->refuseCopy = security.refuseCopy;
    }
    return encryption;
}

namespace {

void createPDF(std::span<const PDFFileInfo *const> entries, const QString &path,
               const ConversionOptions &given, ConversionObserver *observer,
               const std::stop_token &stop, PDFOutcome &outcome) {
    StoppableCalls calls(given.calls, stop);
    ConversionOptions options = given;
    options.calls = calls;
    const std::optional<TagOptions> tags = tagOptions(entries, path, options);
    options.tagged = tags.has_value();
    PDFContext context(path, {.info = options.info,
                              .encryption = encryptionFor(options.security),
                              .oneSource = entries.size() == 1,
                              .keepInfo = options.keepInfo,
                              .sourceBookmarks = hasThoseOfSources(options.bookmarks),
                              .tags = tags,
                              .inputPasswords = options.inputPasswords,
                              .sources = wholePdfs(entries),
                              .archive = options.archive,
                              .flush = options.flush,
                              .mayReplace = options.overwrite != Overwrite::Never,
                              .calls = calls});
    DocumentRecord record;
    PicturesAhead pictures(entries, options);
    for (std::size_t i = 0; i < entries.size() && !stop.stop_requested(); ++i) {
        const int firstPage = context.pageCount();
        outcome.entries.push_back(
            writeEntry(*entries[i], context, options, pictures, stop, record.emplace_back()));
        if (hasThoseOfFiles(options.bookmarks) && context.pageCount() > firstPage) {
            context.addBookmark(entries[i]->bookmarkTitle(), firstPage);
        }
        if (observer) {
            const auto done = static_cast<float>(i + 1);
            observer->progressChanged(done / static_cast<float>(entries.size()) * kPagesShare);
            observer->entryDone(i, outcome.entries.back().written);
        }
    }
    if (!stop.stop_requested()) {
        const QString fileName = entries.empty() ? QString() : entries.front()->fileName();
        const QString failure = reasonOfFailure([&] {
            addAllMarginTexts(entries, context, options, stop, outcome.entries, record);
            attachManifest(entries, context, options, outcome.entries);
        });
        const auto inspect = verifyingInspection(record, options, stop, outcome.entries);
        outcome.close = failure.isEmpty() ? closeContext(context, path, fileName, options, inspect)
                                          : notWritten(failure);
        if (outcome.isWritten() && !options.verifyOnly.isEmpty()) {
            outcome.close = closeFound(record, options, stop, outcome.entries);
        }
        leaveInTheEnd(outcome.close.left, outcome.entries);
        std::ranges::copy(namePartlyTagged(entries, outcome.entries, options.tagged),
                          std::back_inserter(outcome.close.warnings));
    }
    if (stop.stop_requested() && outcome.close.status != CloseResult::Status::Written) {
        outcome.close = notWritten(conversionStopped().reason());
    }
}

} // namespace

PDFOutcome createPDF(std::span<const PDFFileInfo *const> entries, const QString &path,
                     const ConversionOptions &options, ConversionObserver *observer,
                     const std::stop_token &stop) {
    PDFOutcome outcome;
    const QString failure =
        reasonOfFailure([&] { createPDF(entries, path, options, observer, stop, outcome); });
    if (!failure.isEmpty()) {
        outcome.close = notWritten(failure);
    }
    return outcome;
}

QString systemLanguage() {
    const QLocale system = QLocale::system();
    // Newer Qt calls "C" by a name that is no registered tag.
    return system.language() == QLocale::C ? u"en"_s : system.bcp47Name();
}

float compressionProgress(int pageIndex, int pageCount) {
    const auto written = static_cast<float>(pageIndex + 1);
    return written / static_cast<float>(pageCount) * (kFull - kPagesShare) + kPagesShare;
}

} // namespace folioforge
