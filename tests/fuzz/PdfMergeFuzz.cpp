// SPDX-License-Identifier: Apache-2.0

// A PDF of any bytes: its pages are copied into a document that other readers need not repair, all
// of it once and as one of two sources, or there is a reason.

#include "FuzzSupport.h"
#include "pdf/PDFContext.h"
#include "pdf/import/SourceDocument.h"

#include <QFile>

#include <algorithm>

#include <qpdf/QPDF.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

/// Names are copied as they stand, so one that is wrong in the source is as wrong in the copy.
bool isOfTheSource(const QPDFExc &warning) {
    return warning.getMessageDetail().starts_with("name with stray #");
}

void requireInOrder(const QString &path, int pages) {
    QPDF document;
    document.setSuppressWarnings(true);
    document.setAttemptRecovery(false);
    document.processFile(QFile::encodeName(path).constData());
    require(document.getAllPages().size() == static_cast<std::size_t>(pages));
    require(std::ranges::all_of(document.getWarnings(), isOfTheSource));
}

void merge(const QString &source, const PDFSummary &summary, int copies) {
    const QString path = freshPath(u"merged.pdf"_s);
    PDFContext::Settings settings;
    settings.oneSource = copies == 1;
    settings.flush = Flush::Never;
    PDFContext context(path, std::move(settings));
    for (int i = 0; i < copies; ++i) {
        require(context.addDocument(source).pages == summary.pageCount);
    }
    const CloseResult closed = context.close();
    if (closed.status == CloseResult::Status::Failed) {
        throw Error(closed.reason);
    }
    require(closed.status == CloseResult::Status::Written);
    requireInOrder(path, copies * summary.pageCount);
}

} // namespace

FUZZ_TARGET(PdfMerge) {
    refuseMessages();
    const MemoryFile source(u"pdf"_s, bytes);
    refuses([&] {
        const PDFSummary summary = summarizePDF(source.path());
        if (!summary.encrypted) {
            merge(source.path(), summary, 1);
            merge(source.path(), summary, 2);
        }
    });
}
