#pragma once

#include "filelist/PDFFileInfo.h"

#include <QStringList>

#include <vector>

namespace folioforge {

/// What became of paths that were to enter the list.
struct ReadEntries {
    std::vector<PDFFileInfo> entries; ///< In the order of their paths.
    QStringList badFiles;             ///< PDF files that are encrypted or cannot be read, in order.
};

/// Makes the entries of `paths`, each waiting and with its size text. The files are read by several
/// threads, as far as the list needs them; nothing is left running when it returns.
ReadEntries readEntries(const QStringList &paths);

} // namespace folioforge
