// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceDocument.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/FormImport.h"
#include "pdf/import/LostTrailer.h"
#include "pdf/import/PageTree.h"
#include "pdf/import/SourceInput.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Throws Error when the file has neither the mark that begins a PDF nor the one that ends it. The
/// library would first search all of it for objects.
void requirePdfMark(const FileVersion &file, SourceReader &reader) {
    constexpr qint64 kPiece = 1024; // Where readers look for either.
    const auto has = [&](qint64 offset, std::string_view mark) {
        std::array<char, kPiece> piece{};
        const auto got = reader.read(file, offset, piece);
        return std::string_view(piece.data(), got).find(mark) != std::string_view::npos;
    };
    if (!has(0, "%PDF-") && !has(std::max<qint64>(file.size - kPiece, 0), "startxref")) {
        throw Error(u"This is not a PDF file"_s);
    }
}

/// Null when the document needs a password or has an unknown security handler.
std::unique_ptr<QPDF> openUnlessLocked(const FileVersion &file,
                                       const std::shared_ptr<SourceReader> &reader,
                                       SourceInput::Table table, const std::string &trailer = {}) {
    auto document = std::make_unique<QPDF>();
    document->setSuppressWarnings(true);
    document->setAttemptRecovery(file.size <= kMaxRepairedBytes);
    try {
        withAllObjects(*document, *reader, [&] {
            document->processInputSource(
                std::make_shared<SourceInput>(file, reader, table, trailer));
            return document->getRoot(); // Throws when the table leads to no catalog.
        });
    } catch (const QPDFExc &error) {
        if (error.getErrorCode() == qpdf_e_password || error.getErrorCode() == qpdf_e_unsupported) {
            return nullptr;
        }
        throw;
    }
    return document;
}

/// Searches the file for objects, and in one that is cut off for the catalog too.
std::unique_ptr<QPDF> openBySearch(const FileVersion &file,
                                   const std::shared_ptr<SourceReader> &reader) {
    try {
        return openUnlessLocked(file, reader, SourceInput::Table::Hidden);
    } catch (const QPDFExc &) {
        const std::string trailer = lostTrailer(file, *reader);
        if (trailer.empty()) {
            throw;
        }
        return openUnlessLocked(file, reader, SourceInput::Table::Hidden, trailer);
    }
}

/// Also repairs a file whose cross-reference table the library wrongly takes for intact.
std::unique_ptr<QPDF> openUnlessLocked(const FileVersion &file,
                                       const std::shared_ptr<SourceReader> &reader) {
    requirePdfMark(file, *reader);
    try {
        return openUnlessLocked(file, reader, SourceInput::Table::Shown);
    } catch (const QPDFExc &) {
        if (file.size > kMaxRepairedBytes) {
            throw;
        }
        return openBySearch(file, reader);
    }
}

/// Throws Error where the pages of the document are not in the file.
void requirePages(QPDF &document) {
    if (isDynamicForm(document)) {
        throw Error(u"It is a dynamic XFA form, whose pages only a program for such forms makes"_s);
    }
}

} // namespace

PDFSummary summarizePDF(const QString &path, SystemCalls &calls) {
    return translateQpdfErrors([&] {
        const auto reader = std::make_shared<SourceReader>(calls);
        const auto document = openUnlessLocked(FileVersion::of(path), reader);
        if (!document || document->isEncrypted()) {
            return PDFSummary{true, 0};
        }
        const auto pages = withAllObjects(*document, *reader, [&] {
            requirePages(*document);
            return readSourcePages(*document).pages.size();
        });
        return PDFSummary{false, static_cast<int>(pages)};
    });
}

std::unique_ptr<QPDF> openSourceDocument(const FileVersion &file,
                                         const std::shared_ptr<SourceReader> &reader) {
    return translateQpdfErrors([&] {
        auto document = openUnlessLocked(file, reader);
        if (!document || document->isEncrypted()) {
            throw Error(u"The document is encrypted"_s);
        }
        return withAllObjects(*document, *reader, [&] {
            requirePages(*document);
            return std::move(document);
        });
    });
}

} // namespace folioforge
