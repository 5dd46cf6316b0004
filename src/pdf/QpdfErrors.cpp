// SPDX-License-Identifier: Apache-2.0

#include "pdf/QpdfErrors.h"

#include "error/Reasons.h"

#include <QRegularExpression>

#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

struct Cause {
    std::string_view sign; ///< A part of what libqpdf says.
    const char *words;
};

/// The first one that fits counts.
constexpr std::array kCauses{
    Cause{"PDF header", QT_TRANSLATE_NOOP("Reasons", "its header is missing")},
    Cause{"stream length", QT_TRANSLATE_NOOP("Reasons", "the length of a stream is wrong")},
    Cause{"endstream", QT_TRANSLATE_NOOP("Reasons", "the length of a stream is wrong")},
    Cause{"recover stream data", QT_TRANSLATE_NOOP("Reasons", "a stream is cut off")},
    Cause{"xref", QT_TRANSLATE_NOOP("Reasons", "its table of objects is damaged")},
    Cause{"cross-reference", QT_TRANSLATE_NOOP("Reasons", "its table of objects is damaged")},
    Cause{"Cross-reference", QT_TRANSLATE_NOOP("Reasons", "its table of objects is damaged")},
    Cause{"trailer", QT_TRANSLATE_NOOP("Reasons", "its table of objects is damaged")},
    Cause{"object stream", QT_TRANSLATE_NOOP("Reasons", "its table of objects is damaged")},
    Cause{"expected n n obj",
          QT_TRANSLATE_NOOP("Reasons", "an object is not where the table of objects says")},
    Cause{"/Root", QT_TRANSLATE_NOOP("Reasons", "it has no catalog")},
    Cause{"decod", QT_TRANSLATE_NOOP("Reasons", "the data of a stream is damaged")},
    Cause{"inflate", QT_TRANSLATE_NOOP("Reasons", "the data of a stream is damaged")},
    Cause{"EOF", QT_TRANSLATE_NOOP("Reasons", "it is cut off")},
};

/// What libqpdf says beside a fault that it names too.
constexpr std::array<std::string_view, 4> kRemarks{
    "file is damaged",
    "Attempting to reconstruct cross-reference table",
    "attempting to recover stream length",
    "recovered stream length",
};

bool contains(const std::string &text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

} // namespace

QString inWords(const QPDFExc &error) {
    const std::string &detail = error.getMessageDetail();
    const auto cause = std::ranges::find_if(
        kCauses, [&](const Cause &known) { return contains(detail, known.sign); });
    QString words = Reasons::tr("an object is not well formed");
    if (cause != kCauses.end()) {
        words = Reasons::tr(cause->words);
    }
    static const QRegularExpression kNumber(u"object (\\d+)"_s);
    const auto match = kNumber.match(QString::fromLatin1(error.getObject()));
    return match.hasMatch() ? Reasons::tr("%1 (object %2)").arg(words, match.captured(1)) : words;
}

bool isFault(const QPDFExc &warning) {
    return std::ranges::none_of(kRemarks, [&](std::string_view remark) {
        return contains(warning.getMessageDetail(), remark);
    });
}

void makeEmpty(QPDF &document) {
    // First, as a lack of memory in what follows is a warning to the library.
    document.setSuppressWarnings(true);
    document.emptyPDF();
}

std::vector<QPDFExc> faultsOf(QPDF &document) {
    std::vector<QPDFExc> faults = document.getWarnings();
    for (const QPDFExc &fault : faults) {
        document.warn(fault); // Asking for them removed them.
    }
    return faults;
}

bool isLackOfMemory(const std::exception &fault) {
    // Those of a fault in a file begin with the file's name, which may be anything.
    const auto *inFile = dynamic_cast<const QPDFExc *>(&fault);
    const std::string words = inFile ? inFile->getMessageDetail() : fault.what();
    return contains(words, std::bad_alloc().what()) || contains(words, "zlib memory error");
}

void requireMemory(QPDF &document) {
    if (std::ranges::any_of(faultsOf(document), isLackOfMemory)) {
        throw std::bad_alloc();
    }
}

void requireAllObjects(QPDF &document, const SourceReader &reader) {
    reader.requireNoFailure();
    requireMemory(document);
}

} // namespace folioforge
