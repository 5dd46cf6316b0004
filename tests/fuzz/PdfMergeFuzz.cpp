// SPDX-License-Identifier: Apache-2.0

// A PDF of any bytes: its pages, or those that are chosen, are copied into a document that other
// readers need not repair, once and as one of two sources, or there is a reason.

#include "FuzzSupport.h"
#include "pdf/PDFContext.h"
#include "pdf/import/SourceDocument.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <vector>

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

/// Gives the pages of one copy.
int merge(const QString &source, int copies, const PageChoice &choice = {},
          const InputPasswords &passwords = {}) {
    const QString path = freshPath(u"merged.pdf"_s);
    PDFContext::Settings settings;
    settings.oneSource = copies == 1;
    settings.flush = Flush::Never;
    settings.inputPasswords = passwords;
    PDFContext context(path, std::move(settings));
    const int pages = context.addDocument(source, choice).pages;
    for (int i = 1; i < copies; ++i) {
        require(context.addDocument(source, choice).pages == pages);
    }
    const CloseResult closed = context.close();
    if (closed.status == CloseResult::Status::Failed) {
        throw Error(closed.reason);
    }
    require(closed.status == CloseResult::Status::Written);
    requireInOrder(path, copies * pages);
    return pages;
}

/// What to take of a PDF, in words one behind the other: pages, a turn, a password. Nothing where
/// they are none.
struct Taking {
    PageChoice choice;
    InputPasswords passwords;
};

std::optional<Taking> takingFrom(const QByteArray &line) {
    constexpr qsizetype kMaxLength = 100; // A long choice takes any page any number of times.
    const QList<QByteArray> words = line.left(kMaxLength).split(' ');
    const auto range = pageRange(words.value(0));
    const auto turn = pageTurn(words.value(1));
    if (!range && !turn) {
        return std::nullopt;
    }
    Taking taking{{range.value_or(QByteArray()), {}},
                  std::make_shared<std::vector<QByteArray>>(1, words.value(2))};
    if (turn) {
        taking.choice.turns.push_back(*turn);
    }
    return taking;
}

} // namespace

FUZZ_TARGET(PdfMerge) {
    refuseMessages();
    const MemoryFile source(u"pdf"_s, bytes);
    refuses([&] {
        const PDFSummary summary = summarizePDF(source.path());
        if (!summary.encrypted) {
            require(merge(source.path(), 1) == summary.pageCount);
            require(merge(source.path(), 2) == summary.pageCount);
        }
    });
}

/// A line that says what to take, and the PDF.
FUZZ_TARGET(PdfPages) {
    refuseMessages();
    const auto end = std::ranges::find(bytes, '\n');
    const auto length = static_cast<std::size_t>(end - bytes.begin());
    const auto taking = takingFrom(InputReader(bytes.first(length)).rest());
    if (!taking || end == bytes.end()) {
        return;
    }
    const MemoryFile source(u"pdf"_s, bytes.subspan(length + 1));
    refuses([&] {
        const int pages = merge(source.path(), 1, taking->choice, taking->passwords);
        require(merge(source.path(), 2, taking->choice, taking->passwords) == pages);
    });
}
