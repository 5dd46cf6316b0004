// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "files/SourceReader.h"
#include "pdf/Password.h"

#include <QString>

#include <memory>

class QPDF;

namespace folioforge {

/// What the file list shows of a PDF.
struct PDFSummary {
    bool encrypted = false; ///< Also with an empty user password or an unknown security handler.
    int pageCount = 0;      ///< 0 when it is encrypted.
    bool tagged = false;    ///< It has structure elements; false when it is encrypted.
};

/// The largest damaged file in bytes that is repaired. A repair searches all of it for objects,
/// which takes some seconds at this size.
inline constexpr qint64 kMaxRepairedBytes = 256LL << 20;

/// The Error of an encrypted document for which there are no passwords.
Error encryptedDocument();

/// Parses the PDF at `path`, repairs it if it is damaged, and counts its pages. Throws Error when
/// it is no PDF, a dynamic XFA form, cannot be repaired or cannot be read.
PDFSummary summarizePDF(const QString &path, SystemCalls &calls = SystemCalls::system());

/// Parses a source PDF, which `reader` reads, for copying. Throws Error when it is no PDF, a
/// dynamic XFA form or cannot be repaired, or is encrypted and none of `passwords` opens it with
/// the right to put its pages together with others.
std::unique_ptr<QPDF> openSourceDocument(const FileVersion &file,
                                         const std::shared_ptr<SourceReader> &reader,
                                         const InputPasswords &passwords = {});

/// Whether the PDF at `path` has structure elements. Throws Error where openSourceDocument() would.
bool requireSourceDocument(const QString &path, const InputPasswords &passwords = {});

} // namespace folioforge
