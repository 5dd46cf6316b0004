// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceDocument.h"

#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FormImport.h"
#include "pdf/import/ObjectSearch.h"
#include "pdf/import/ObjectTable.h"
#include "pdf/import/PageTree.h"
#include "pdf/import/SourceInput.h"
#include "pdf/import/TableRepair.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

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
        throw Error(Reasons::tr("This is not a PDF file"));
    }
}

/// More than the bytes at the end in which the library looks for "startxref".
constexpr qint64 kEnd = 2048;

/// What has to be added to the file for libqpdf 12 to take objects with numbers as high as the
/// trailer says: the end of the file, far enough behind it. Nothing for a file of common numbers.
AddedBytes endFurtherBehind(QPDF &document, const FileVersion &file, SourceReader &reader) {
    auto trailer = document.getTrailer();
    auto size = trailer.isInitialized() ? entry(trailer, "/Size") : trailer;
    const bool isStated = size.isInitialized() && size.isInteger();
    const qint64 stated = isStated ? size.getIntValue() : 0;
    AddedBytes added{{}, gapFor(file.size, std::min<qint64>(stated, kMaxObjectNumber + 1)), {}};
    if (added.gap > 0) {
        added.behind.resize(kEnd);
        const qint64 start = std::max<qint64>(0, file.size - kEnd);
        added.behind.resize(reader.read(file, start, added.behind));
    }
    return added;
}

/// Reads the table of the document and looks whether it leads to a catalog and a page tree. Does
/// not search the file: see openBySearch(). Throws what libqpdf throws.
void readTable(QPDF &document, const FileVersion &file, const std::shared_ptr<SourceReader> &reader,
               const AddedBytes &added, const std::string &password) {
    document.setSuppressWarnings(true);
    document.setAttemptRecovery(false);
    withAllObjects(document, *reader, [&] {
        document.processInputSource(std::make_shared<SourceInput>(file, reader, added),
                                    password.c_str());
        return document.getRoot(); // Throws when the table leads to no catalog.
    });
    // From here on the library searches for single objects that are not in their place.
    document.setAttemptRecovery(file.size <= kMaxRepairedBytes);
}

/// Null when `password` does not open the document or it has an unknown security handler. Also
/// repairs a file whose table of objects is damaged or is wrongly taken for intact.
std::unique_ptr<QPDF> openUnlessLocked(const FileVersion &file,
                                       const std::shared_ptr<SourceReader> &reader,
                                       const std::string &password = {},
                                       const AddedBytes &added = {}) {
    auto document = std::make_unique<QPDF>();
    std::vector<QPDFExc> faults;
    try {
        readTable(*document, file, reader, added, password);
    } catch (const QPDFExc &error) {
        if (error.getErrorCode() == qpdf_e_password || error.getErrorCode() == qpdf_e_unsupported) {
            return nullptr;
        }
        faults = document->getWarnings();
        faults.push_back(error);
    }
    const AddedBytes further = endFurtherBehind(*document, file, *reader);
    if (added.gap == 0 && further.gap > 0) {
        return openUnlessLocked(file, reader, password, further);
    }
    if (faults.empty()) {
        return document;
    }
    if (file.size > kMaxRepairedBytes) {
        throw QPDFExc(faults.back());
    }
    document = openBySearch(file, reader);
    for (const QPDFExc &fault : faults) {
        if (document) {
            document->warn(fault);
        }
    }
    return document;
}

/// Whether pages of the document may be taken.
bool isOpenFarEnough(QPDF &document) {
    return !document.isEncrypted() || document.ownerPasswordMatched() ||
           document.allowModifyAssembly();
}

/// Opens an encrypted document with one of `passwords`; `isOpen` says whether the empty one opened
/// it, which is not tried again. Throws Error where none opens it far enough.
std::unique_ptr<QPDF> unlock(const FileVersion &file, const std::shared_ptr<SourceReader> &reader,
                             const std::vector<QByteArray> &passwords, bool isOpen) {
    std::vector<std::string> tried;
    for (const QByteArray &password : passwords) {
        // Programs differ in the bytes that they made of the characters.
        const auto forms = QUtil::possible_repaired_encodings(password.toStdString());
        tried.insert(tried.end(), forms.begin(), forms.end());
    }
    for (const std::string &password : tried) {
        auto document = openUnlessLocked(file, reader, password);
        if (document && isOpenFarEnough(*document)) {
            return document;
        }
        isOpen = isOpen || document != nullptr;
    }
    throw Error(
        isOpen
            ? Reasons::tr("The document is encrypted, and its permissions do not let its pages be "
                          "taken; its owner password would")
            : Reasons::tr("The document is encrypted, and none of the passwords opens it"));
}

/// Throws Error where the pages of the document are not in the file.
void requirePages(QPDF &document) {
    if (isDynamicForm(document)) {
        throw Error(Reasons::tr(
            "It is a dynamic XFA form, whose pages only a program for such forms makes"));
    }
}

bool isTagged(QPDF &document) {
    return !entry(entry(document.getRoot(), "/StructTreeRoot"), "/K").isNull();
}

} // namespace

PDFSummary summarizePDF(const QString &path, SystemCalls &calls) {
    return translateQpdfErrors([&] {
        const auto reader = std::make_shared<SourceReader>(calls);
        const FileVersion file = FileVersion::of(path);
        requirePdfMark(file, *reader);
        const auto document = openUnlessLocked(file, reader);
        if (!document || document->isEncrypted()) {
            return PDFSummary{true, 0};
        }
        const auto pages = withAllObjects(*document, *reader, [&] {
            requirePages(*document);
            return readSourcePages(*document).pages.size();
        });
        return PDFSummary{false, static_cast<int>(pages), isTagged(*document)};
    });
}

Error encryptedDocument() {
    return Error(Reasons::tr("The document is encrypted"));
}

std::unique_ptr<QPDF> openSourceDocument(const FileVersion &file,
                                         const std::shared_ptr<SourceReader> &reader,
                                         const InputPasswords &passwords) {
    return translateQpdfErrors([&] {
        requirePdfMark(file, *reader);
        auto document = openUnlessLocked(file, reader);
        if (!passwords && (!document || document->isEncrypted())) {
            throw encryptedDocument();
        }
        if (!document || !isOpenFarEnough(*document)) {
            const bool isOpen = document != nullptr;
            document.reset(); // Documents take turns at the reader.
            document = unlock(file, reader, *passwords, isOpen);
        }
        return withAllObjects(*document, *reader, [&] {
            requirePages(*document);
            return std::move(document);
        });
    });
}

bool requireSourceDocument(const QString &path, const InputPasswords &passwords) {
    const auto document =
        openSourceDocument(FileVersion::of(path), std::make_shared<SourceReader>(), passwords);
    return translateQpdfErrors([&] { return isTagged(*document); });
}

} // namespace folioforge
