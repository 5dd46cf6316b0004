// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Notice.h"
#include "error/Warning.h"
#include "filelist/FileKind.h"
#include "pdf/import/SourceDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace folioforge {

class ReadableLinks;

/// What stands in a folder, one level deep.
struct FolderEntries {
    /// The text and image files, as the file system's own bytes, in its order, hidden ones too.
    std::vector<QByteArray> names;
    /// What is left out of a run that does not ask for it, without hidden entries.
    std::vector<QByteArray> pdfs;
    std::vector<QByteArray> folders;
    int others = 0;

    /// What beside `names` is left out, counted in words; nothing where all is taken.
    [[nodiscard]] Warnings warnings() const;
};

/// Lists `folder`, with texts of `further` types. Throws Error when it cannot be listed to its end.
FolderEntries listFolder(const QByteArray &folder, FurtherTypes further = {});

/// Appends to `files` the paths ("folder/name", or links to them) of the names that listFolder()
/// gives and the window offers; nothing where `folder` cannot be listed.
void addDirectorie(const QString &folder, QStringList &files, ReadableLinks &readableLinks);

/// Size text of a file of `bytes` bytes, taken as a signed 32-bit number and rounded up to whole
/// blocks of 4096: "4 KB", "%d KB" or "%0.1f MB".
QString sizeText(qint64 bytes);

/// What the list shows of the PDF at `path`. Throws Error when it may not enter the list, because
/// it is encrypted or does not open as a PDF.
PDFSummary summarizeOpenPdf(const QString &path);

/// The one alert for the PDF files that were refused, in order, one a line. The paths are read as a
/// format string without arguments: "%%" becomes "%" and any other conversion stays.
Notice badFilesNotice(const QStringList &paths);

} // namespace folioforge
