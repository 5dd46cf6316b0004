// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/PDFFileInfo.h"
#include "pdf/Password.h"

#include <QStringList>

#include <vector>

namespace folioforge {

/// A path that is to enter the list, as an entry.
struct ReadEntry {
    PDFFileInfo entry;       ///< Waiting, with its size text and, as far as known, its page count.
    QString problem;         ///< Why it cannot be converted; empty when it can.
    bool refusedPdf = false; ///< The problem is a PDF that is encrypted or cannot be read as one.
};

/// Makes the entries of `paths` in their order. The files are read by several threads, as far as
/// the list needs them; nothing is left running when it returns. Where they are read when they are
/// written, `passwords` open encrypted PDFs. Types beyond `further` are a problem.
std::vector<ReadEntry> readEntries(const QStringList &paths, SourceReading reading,
                                   const InputPasswords &passwords = {}, FurtherTypes further = {});

} // namespace folioforge
