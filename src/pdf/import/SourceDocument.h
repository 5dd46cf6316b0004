#pragma once

#include "files/SourceReader.h"

#include <QString>

#include <memory>

class QPDF;

namespace folioforge {

/// What the file list asks of a PDF.
struct PDFSummary {
    bool encrypted = false; ///< Also with an empty user password or an unknown security handler.
    int pageCount = 0;      ///< 0 where it is encrypted.
};

/// A damaged file up to this many bytes is repaired, which means searching all of it for objects:
/// some seconds at this size, minutes at many times that.
inline constexpr qint64 kMaxRepairedBytes = 256LL << 20;

/// Opens the PDF at `path` as far as needed to say this; a damaged file that can be repaired counts
/// as readable. Throws Error when it is no PDF, beyond repair or cannot be read.
PDFSummary summarizePDF(const QString &path, SystemCalls &calls = SystemCalls::system());

/// Opens a source PDF for copying through `reader`. Throws Error when it is no PDF, encrypted or
/// beyond repair.
std::unique_ptr<QPDF> openSourceDocument(const FileVersion &file,
                                         const std::shared_ptr<SourceReader> &reader);

} // namespace folioforge
